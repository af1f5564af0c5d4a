// SPDX-License-Identifier: GPL-3.0-or-later
// One record of the record book's files: every field in double quotes, CR LF at the end.
#pragma once

#include "core/day.h"
#include "core/text.h"
#include "exports/entries.h"

#include <string>
#include <string_view>

namespace tallywick::exports {

/// A record under construction at the end of `text`; its line end is written when it goes.
class QuotedRecord {
 public:
  explicit QuotedRecord(std::string& text) : text_(text) {}
  ~QuotedRecord() { text_ += "\r\n"; }
  QuotedRecord(const QuotedRecord&) = delete;
  QuotedRecord& operator=(const QuotedRecord&) = delete;

  QuotedRecord& field(std::string_view value) {
    text_.append(first_ ? "\"" : ",\"").append(value).append("\"");
    first_ = false;
    return *this;
  }
  /// Three fields.
  QuotedRecord& day(Day day) {
    const DayFields fields = fieldsOf(day);
    return field(fields.month).field(fields.day).field(fields.year);
  }
  /// Six fields of two digits.
  QuotedRecord& balls(const Balls& balls) {
    for (int white : balls.white) field(twoDigits(white));
    return field(twoDigits(balls.extra));
  }

 private:
  std::string& text_;
  bool first_ = true;
};

}  // namespace tallywick::exports
