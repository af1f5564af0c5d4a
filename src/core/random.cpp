// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/random.h"

#include "core/text.h"

#include <random>

namespace tallywick {

void MixingGenerator::seed(std::string_view text) {
  const std::uint64_t folded = hashed(draw(), text);
  state_ ^= folded;
}

double MixingGenerator::next() {
  constexpr double step = 1.0 / 9007199254740992.0;  // 2^-53: every value is below 1
  return static_cast<double>(draw() >> 11U) * step;
}

std::uint64_t MixingGenerator::draw() {
  std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15U;
  mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
  mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
  return mixed ^ (mixed >> 31U);
}

std::uint64_t entropy() {
  std::random_device device;
  return (static_cast<std::uint64_t>(device()) << 32U) ^ device();
}

}  // namespace tallywick
