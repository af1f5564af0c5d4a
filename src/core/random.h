// SPDX-License-Identifier: GPL-3.0-or-later
// The random generator of Quick Pick.
#pragma once

#include <cstdint>
#include <string_view>

namespace tallywick {

class RandomGenerator {
 public:
  virtual ~RandomGenerator() = default;
  /// Folds a seed text into the generator's state. What was drawn before still counts: seeding twice with the
  /// same text starts no sequence anew.
  virtual void seed(std::string_view text) = 0;
  /// The next uniform value in [0, 1).
  virtual double next() = 0;
};

/// SplitMix64: a 64-bit counter with a mixing function, equidistributed and as good as any for picking
/// numbers.
class MixingGenerator : public RandomGenerator {
 public:
  /// Begins at `start`: the same start, seeds and calls give the same values.
  explicit MixingGenerator(std::uint64_t start) : state_(start) {}
  void seed(std::string_view text) override;
  double next() override;

 private:
  std::uint64_t draw();
  std::uint64_t state_;
};

/// A start that no two runs share.
std::uint64_t entropy();

}  // namespace tallywick
