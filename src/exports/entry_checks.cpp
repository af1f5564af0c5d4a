// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/entry_checks.h"

#include "core/eras.h"
#include "core/text.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>

namespace tallywick::exports {

namespace {

template <typename... Pieces>
[[noreturn]] void refuse(const Pieces&... pieces) {
  throw std::runtime_error(join(pieces...));
}

/// A field as a refusal quotes it.
std::string quoted(std::string_view field) {
  return join("\"", visible(field, 32), "\"");
}

void requireRange(int number, int highest, std::string_view what) {
  if (number >= 1 && number <= highest) return;
  refuse(what, " ", std::to_string(number), " is not from 1 to ", std::to_string(highest));
}

}  // namespace

std::string visible(std::string_view text, std::size_t most) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string shown;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    if (byte >= ' ' && byte < 0x7F) {
      shown += letter;
    } else {
      shown.append("\\x").append(1, digits[byte >> 4U]).append(1, digits[byte & 15U]);
    }
    if (shown.size() > most) return shown.substr(0, most - 3).append("...");
  }
  return shown;
}

Day checkedDay(std::string_view text, Day today) {
  const std::optional<Day> day = parseDay(text);
  if (!day) refuse(quoted(text), " is not a date (MM/DD/YYYY)");
  if (*day > today) refuse(displayDate(*day), " is later than today, ", displayDate(today));
  return *day;
}

int checkedNumber(std::string_view text) {
  const auto number = wholeNumber<int>(text);
  if (!number) refuse(quoted(text), " is not a number");
  return *number;
}

std::vector<int> checkedNumbers(std::string_view text) {
  constexpr std::string_view separators = " ,";
  std::vector<int> numbers;
  for (std::size_t begin = text.find_first_not_of(separators); begin != std::string_view::npos;) {
    const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
    numbers.push_back(checkedNumber(text.substr(begin, end - begin)));
    begin = text.find_first_not_of(separators, end);
  }
  return numbers;
}

std::array<int, 5> checkedWhites(std::vector<int> numbers, int highest) {
  std::array<int, 5> white{};
  if (numbers.size() != white.size()) refuse(std::to_string(numbers.size()), " numbers instead of 5");
  std::ranges::sort(numbers);
  std::ranges::copy(numbers, white.begin());
  for (int number : white) requireRange(number, highest, "the white ball");
  const auto twice = std::ranges::adjacent_find(white);
  if (twice != white.end()) refuse("the white ball ", std::to_string(*twice), " occurs twice");
  return white;
}

int checkedExtra(int number, int highest) {
  requireRange(number, highest, "the extra ball");
  return number;
}

std::string checkedMultiplier(std::string_view text) {
  if (text.empty()) return "1";
  const int multiplier = checkedNumber(text);
  requireRange(multiplier, 10, "the multiplier");
  return std::to_string(multiplier);
}

AmountEntry checkedAmount(Day day, std::string_view amount, std::string_view marks) {
  const auto isUnfit = [](char letter) { return letter == '"' || static_cast<unsigned char>(letter) < ' '; };
  if (std::ranges::any_of(amount, isUnfit)) refuse("the amount contains a quote or a control character");
  return {day, std::string(amount), marks.empty() ? 0 : checkedNumber(marks)};
}

Balls checkedBalls(Game game, Day day, std::vector<int> numbers, std::string& notice) {
  if (numbers.size() != 6) refuse(std::to_string(numbers.size()), " numbers instead of 6");
  const Matrix known = matrixOn(game, day).value();
  const Matrix matrix = day >= erasOf(game).back().from ? Matrix{99, 99} : known;
  const int extra = numbers.back();
  numbers.pop_back();
  const Balls balls{checkedWhites(std::move(numbers), matrix.white), checkedExtra(extra, matrix.extra)};
  if (balls.white.back() > known.white || balls.extra > known.extra) {
    notice = join(displayDate(day), " has a number beyond ", std::to_string(known.white), " or ",
                  std::to_string(known.extra), ": the game's rules seem to have changed");
  }
  return balls;
}

}  // namespace tallywick::exports
