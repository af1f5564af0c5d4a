// SPDX-License-Identifier: GPL-3.0-or-later
// The draw dates of plays, looked up in the draw-day calendar.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class Clock;
class DataFolder;

/// What the calendar lacks, as a text for the player that names the file.
class CalendarGap : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Raises CalendarGap where the calendar is missing.
void requireCalendar(const DataFolder& folder);

/// The draw for which a play made now is entered: today's up to 18:00:00 on a draw day, the next one
/// otherwise. Raises CalendarGap.
std::string drawDateOfPlayMadeNow(const DataFolder& folder, const Clock& clock, std::string_view drawDays);

/// `first` and the draw days after it, `count` dates in all. Raises CalendarGap.
std::vector<std::string> drawDatesFrom(const DataFolder& folder, std::string_view drawDays,
                                       std::string_view first, int count);

}  // namespace tallywick
