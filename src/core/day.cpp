// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/day.h"

#include "core/text.h"

#include <array>
#include <charconv>

namespace tallywick {

int Day::dayOfYear() const {
  return *this - *from(year(), 1, 1) + 1;
}

std::optional<Day> parseDay(std::string_view text) {
  std::array<int, 3> parts{};
  const char* at = text.data();
  const char* const end = at + text.size();
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (i > 0 && (at == end || (*at != '-' && *at != '/') || *at++ != text[text.find_first_of("-/")]))
      return {};
    if (at == end || *at == '-') return {};
    const auto [next, error] = std::from_chars(at, end, parts[i]);
    if (error != std::errc()) return {};
    at = next;
  }
  if (at != end || parts[2] < 1000) return {};
  const auto [month, day, year] = parts;
  return Day::from(year, month, day);
}

std::optional<Day> parseDay(std::string_view month, std::string_view day, std::string_view year) {
  return parseDay(join(trimmed(month), "-", trimmed(day), "-", trimmed(year)));
}

std::string_view weekdayName(Day day) {
  constexpr std::array<std::string_view, 7> names = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                     "Friday", "Saturday", "Sunday"};
  return names.at(static_cast<std::size_t>(day.weekday() - 1));
}

DayFields fieldsOf(Day day) {
  const std::chrono::year_month_day date = day.date();
  return {twoDigits(static_cast<int>(static_cast<unsigned>(date.month()))),
          twoDigits(static_cast<int>(static_cast<unsigned>(date.day()))),
          join(twoDigits(day.year() / 100), twoDigits(day.year()))};
}

std::string displayDate(Day day) {
  const DayFields fields = fieldsOf(day);
  return join(fields.month, "-", fields.day, "-", fields.year);
}

}  // namespace tallywick
