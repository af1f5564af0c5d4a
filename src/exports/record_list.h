// SPDX-License-Identifier: GPL-3.0-or-later
// The records of a draw or amount file, to be changed and written again.
#pragma once

#include "core/day.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::exports {

/// A record's fields. The first three are its date, month first.
struct FileRecord {
  std::vector<std::string> fields;
  /// None where the date is no day of the calendar.
  std::optional<Day> day;
};

class RecordList {
 public:
  /// Cuts `text` as the displays read it. A record that the end of the file cuts short is left out.
  RecordList(std::string_view text, std::size_t fieldCount);

  std::vector<FileRecord> records;

  /// Puts the newest record first. A record without a date stays behind the one before it.
  void sort();

  /// The text of the file: the one that was read where no field has changed, else all fields in double quotes
  /// and CR LF at the end of a record.
  std::string text() const;

 private:
  std::string read_;
  std::vector<FileRecord> readRecords_;
  /// Whether a record was left out at its end.
  bool isCut_ = false;
};

/// The date fields of `day`, and `fields` behind them.
FileRecord recordFor(Day day, std::vector<std::string> fields);

}  // namespace tallywick::exports
