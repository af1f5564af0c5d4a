// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/clock.h"

#include "core/day.h"
#include "core/text.h"

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

FixedClock::FixedClock(std::string date, std::string time) : date_(std::move(date)), time_(std::move(time)) {}

FixedClock::FixedClock(const Clock& clock) : FixedClock(clock.date(), clock.time()) {}

std::optional<FixedClock> fixedClock(std::string_view text) {
  if (!hasForm(text, "00-00-0000 00:00:00") || !parseDay(text.substr(0, 10))) return std::nullopt;
  const std::string_view time = text.substr(11);
  if (time.substr(0, 2) > "23" || time.substr(3, 2) > "59" || time.substr(6) > "59") return std::nullopt;
  return FixedClock(std::string(text.substr(0, 10)), std::string(time));
}

bool SettableClock::set(std::string_view text) {
  std::optional<FixedClock> fixed = fixedClock(text);
  if (!fixed) return false;
  fixed_ = std::move(fixed);
  return true;
}

}  // namespace tallywick
