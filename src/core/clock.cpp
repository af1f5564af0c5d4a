// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/clock.h"

#include "core/day.h"

#include <array>
#include <charconv>
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

/// Whether `text` has a digit wherever `form` has one and equals it elsewhere.
bool hasForm(std::string_view text, std::string_view form) {
  if (text.size() != form.size()) return false;
  for (std::size_t i = 0; i < form.size(); ++i) {
    const bool digit = text[i] >= '0' && text[i] <= '9';
    if (form[i] == '0' ? !digit : text[i] != form[i]) return false;
  }
  return true;
}

/// Whether the numbers of a text in the form "MM-DD-YYYY HH:MM:SS" are those of a day and a time.
bool isTime(std::string_view text) {
  const auto number = [&](std::size_t begin, std::size_t size) {
    int value = 0;
    std::from_chars(text.data() + begin, text.data() + begin + size, value);
    return value;
  };
  return Day::from(number(6, 4), number(0, 2), number(3, 2)) && number(11, 2) < 24 && number(14, 2) < 60 &&
         number(17, 2) < 60;
}

}  // namespace

std::string SystemClock::date() const {
  return now("%m-%d-%Y");
}
std::string SystemClock::time() const {
  return now("%H:%M:%S");
}

FixedClock::FixedClock(std::string date, std::string time) : date_(std::move(date)), time_(std::move(time)) {}

bool SettableClock::set(std::string_view text) {
  if (!hasForm(text, "00-00-0000 00:00:00") || !isTime(text)) return false;
  fixed_.emplace(std::string(text.substr(0, 10)), std::string(text.substr(11)));
  return true;
}

}  // namespace tallywick
