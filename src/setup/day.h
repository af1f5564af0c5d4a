// Calendar days and the forms in which the files and exports write them.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace tallywick::setup {

using Day = std::chrono::sys_days;

constexpr Day dayOf(int year, unsigned month, unsigned day) {
  return std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
}

/// MM-DD-YYYY or MM/DD/YYYY, with or without leading zeros. None where it is no day of the calendar.
std::optional<Day> parseDay(std::string_view text);

/// The three fields with which the records of draws, amounts and the calendar begin.
struct DayFields {
  std::string month;
  std::string day;
  std::string year;
};
DayFields fieldsOf(Day day);

/// MM-DD-YYYY.
std::string displayDate(Day day);

}  // namespace tallywick::setup
