#include "setup/day.h"

#include "core/text.h"

#include <array>
#include <charconv>

namespace tallywick::setup {

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
  const auto [month, dayOfMonth, year] = parts;
  if (at != end || month < 1 || month > 12 || dayOfMonth < 1 || dayOfMonth > 31 || year < 1000 ||
      year > 9999) {
    return {};
  }
  const std::chrono::year_month_day day(std::chrono::year(year),
                                        std::chrono::month(static_cast<unsigned>(month)),
                                        std::chrono::day(static_cast<unsigned>(dayOfMonth)));
  if (!day.ok()) return {};
  return Day(day);
}

DayFields fieldsOf(Day day) {
  const std::chrono::year_month_day date(day);
  return {twoDigits(static_cast<int>(static_cast<unsigned>(date.month()))),
          twoDigits(static_cast<int>(static_cast<unsigned>(date.day()))),
          std::to_string(static_cast<int>(date.year()))};
}

std::string displayDate(Day day) {
  const DayFields fields = fieldsOf(day);
  return join(fields.month, "-", fields.day, "-", fields.year);
}

}  // namespace tallywick::setup
