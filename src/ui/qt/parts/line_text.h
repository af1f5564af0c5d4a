// SPDX-License-Identifier: GPL-3.0-or-later
// What lists do with lines of text, without any window: fields, comma-separated form, emphasis, search.
#pragma once

#include "controls/text_lines.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// The pieces of a line between its runs of blanks.
std::vector<std::string_view> piecesOf(std::string_view line);

/// The fields separated by commas; a field with a comma or a quote is quoted. No line end.
std::string csvLine(std::span<const std::string> fields);
/// The same for the fields of a line.
std::string csvLine(std::string_view line);

struct TextRun {
  std::size_t begin;
  std::size_t length;

  bool operator==(const TextRun&) const = default;
};

/// Where one of the texts is a field of the line or several fields that follow each other, in the order of
/// the line. A date that only contains such a text is another field.
std::vector<TextRun> emphasisedRuns(std::string_view line, const std::vector<std::string>& texts);

/// The first line from `start` on, and then from the top, in which a field begins with `typed`; the number of
/// lines where there is none.
std::size_t findLine(const TextLines& lines, std::string_view typed, std::size_t start);

}  // namespace tallywick
