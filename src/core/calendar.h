// SPDX-License-Identifier: GPL-3.0-or-later
// The draw-day calendar "QZRNUM22.DTE": one record a day in date order.
#pragma once

#include "core/sequential_reader.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallywick {

class DataFolder;

/// Month, day, year, day name, day of year, day code.
inline constexpr std::size_t calendarFields = 6;

/// The calendar, read forwards.
class Calendar {
 public:
  /// Error 53 where the file is missing.
  explicit Calendar(const DataFolder& folder);

  /// Reads on to the record dated `date` (MM-DD-YYYY). False where the calendar ends before it.
  bool readTo(std::string_view date);

  /// The date of the next record whose day code is one of `drawDays`; none where the calendar ends before it.
  std::optional<std::string> nextDrawDay(std::string_view drawDays);

  /// Whether the record read last is a draw day. Monday's code is 1, Sunday's 7.
  bool isDrawDay(std::string_view drawDays) const;

 private:
  void readDay();

  SequentialReader reader_;
  std::string date_;
  std::string_view dayCode_;
};

}  // namespace tallywick
