// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/draw_dates.h"

#include "core/calendar.h"
#include "core/clock.h"
#include "core/games.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace tallywick {

namespace {

constexpr std::string_view endOfSale = "18:00:00";

[[noreturn]] void fail(std::string_view what) {
  throw CalendarGap(join("The calendar file \"", calendarFile, "\" ", what, " Nothing was saved."));
}

/// Runs `look` on the calendar; a missing file, or one whose last record is cut short, is a gap too.
template <typename Look>
auto lookUp(const DataFolder& folder, Look look) {
  try {
    Calendar calendar(folder);
    return look(calendar);
  } catch (const RuntimeError& error) {
    if (error.is(ErrorNumber::fileNotFound)) fail("is missing.");
    if (error.is(ErrorNumber::inputPastEnd)) fail("ends too early.");
    throw;
  }
}

void readTo(Calendar& calendar, std::string_view date) {
  if (!calendar.readTo(date)) fail(join("does not hold ", date, "."));
}

std::string nextDrawDay(Calendar& calendar, std::string_view drawDays) {
  const auto date = calendar.nextDrawDay(drawDays);
  if (!date) fail("does not hold the draw days that are needed.");
  return *date;
}

struct Now {
  std::string date;
  std::string time;
};

/// Date and time of one moment: around midnight the date is asked for again.
Now readClock(const Clock& clock) {
  Now now = {clock.date(), clock.time()};
  if (clock.date() != now.date) now = {clock.date(), clock.time()};
  return {std::string(trimmed(now.date)), std::string(trimmed(now.time))};
}

}  // namespace

void requireCalendar(const DataFolder& folder) {
  lookUp(folder, [](const Calendar&) { return true; });
}

std::string drawDateOfPlayMadeNow(const DataFolder& folder, const Clock& clock, std::string_view drawDays) {
  const Now now = readClock(clock);
  return lookUp(folder, [&](Calendar& calendar) {
    readTo(calendar, now.date);
    const bool forToday = calendar.isDrawDay(drawDays) && now.time <= endOfSale;
    return forToday ? now.date : nextDrawDay(calendar, drawDays);
  });
}

std::vector<std::string> drawDatesFrom(const DataFolder& folder, std::string_view drawDays,
                                       std::string_view first, int count) {
  return lookUp(folder, [&](Calendar& calendar) {
    std::vector<std::string> dates = {std::string(first)};
    readTo(calendar, first);
    while (static_cast<int>(dates.size()) < count) dates.push_back(nextDrawDay(calendar, drawDays));
    return dates;
  });
}

}  // namespace tallywick
