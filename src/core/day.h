// SPDX-License-Identifier: GPL-3.0-or-later
// Calendar days: the one place for date arithmetic, and the forms in which files and exports write a date.
#pragma once

#include <chrono>
#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace tallywick {

/// A day of the Gregorian calendar, kept as its number. One that does not exist cannot be built.
class Day {
 public:
  /// None where the calendar has no such day, or the year has more than four digits.
  static constexpr std::optional<Day> from(int year, int month, int day) {
    if (year < 0 || year > 9999 || month < 1 || month > 12 || day < 1 || day > 31) return std::nullopt;
    const std::chrono::year_month_day date(std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day)));
    if (!date.ok()) return std::nullopt;
    return Day(static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count()));
  }

  /// Days since 1970-01-01.
  constexpr int number() const { return number_; }
  /// Monday is 1, Sunday is 7, as in the calendar file's day codes.
  constexpr int weekday() const {
    return static_cast<int>(
        std::chrono::weekday(std::chrono::sys_days(std::chrono::days(number_))).iso_encoding());
  }
  std::chrono::year_month_day date() const {
    return std::chrono::year_month_day(std::chrono::sys_days(std::chrono::days(number_)));
  }
  int year() const { return static_cast<int>(date().year()); }
  /// 1 January is 1.
  int dayOfYear() const;

  constexpr Day& operator+=(int days) {
    number_ += days;
    return *this;
  }
  friend constexpr Day operator+(Day day, int days) { return day += days; }
  friend constexpr Day operator-(Day day, int days) { return day += -days; }
  friend constexpr int operator-(Day later, Day earlier) { return later.number_ - earlier.number_; }
  // clang-tidy 14 takes a comparison that the compiler writes for a 0.
  friend constexpr auto operator<=>(Day left, Day right) = default;  // NOLINT(modernize-use-nullptr)

 private:
  constexpr explicit Day(int number) : number_(number) {}

  int number_;
};

/// A day that is known when the program is compiled; one that does not exist does not compile.
consteval Day dayOf(int year, int month, int day) {
  return Day::from(year, month, day).value();
}

/// MM-DD-YYYY or MM/DD/YYYY, with or without leading zeros. None where it is no day of the calendar.
std::optional<Day> parseDay(std::string_view text);

/// The same of three fields, each with or without blanks around it.
std::optional<Day> parseDay(std::string_view month, std::string_view day, std::string_view year);

/// For example "Monday".
std::string_view weekdayName(Day day);

/// The three fields with which the records of draws, amounts and the calendar begin.
struct DayFields {
  std::string month;
  std::string day;
  std::string year;
};
DayFields fieldsOf(Day day);

/// MM-DD-YYYY.
std::string displayDate(Day day);

}  // namespace tallywick
