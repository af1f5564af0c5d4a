// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/clock.h"

#include <array>
#include <ctime>
#include <utility>

namespace tallywick {

namespace {

std::string now(const char* form) {
  const std::time_t time = std::time(nullptr);
  std::array<char, 32> text{};
  // std::localtime keeps its result in a static place; the program has one thread.
  const std::size_t size = std::strftime(text.data(), text.size(), form, std::localtime(&time));
  return {text.data(), size};
}

}  // namespace

std::string SystemClock::date() const {
  return now("%m-%d-%Y");
}
std::string SystemClock::time() const {
  return now("%H:%M:%S");
}

StandingClock::StandingClock(std::string date, std::string time)
    : date_(std::move(date)), time_(std::move(time)) {}

}  // namespace tallywick
