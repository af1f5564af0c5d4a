// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of the record book's text files, and the first one that does not have whole records.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tallywick {

/// The length of the first line of `text` with its end, CR LF, LF or CR.
std::size_t lineLength(std::string_view text);

struct TornLine {
  /// From 1.
  std::size_t number;
  /// Without its end.
  std::string_view text;
};

/// The first line of `text` in which a record has fewer than `fields` fields: its reader goes on into the
/// next line and takes the fields of another record for its own. None where each line has whole records.
std::optional<TornLine> firstTornLine(std::string_view text, std::size_t fields);

}  // namespace tallywick
