// SPDX-License-Identifier: GPL-3.0-or-later
// The draw history as searches and counts read it: one pass, and a file that cannot be read is reported to
// the player.
#pragma once

#include "core/outside.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace tallywick {

/// Nothing where the file cannot be read; then a message that names it has been shown.
std::optional<SequentialReader> openHistory(const DataFolder& folder, std::string_view written,
                                            MessageBoxes& boxes);

/// Shows the message that names a history file that cannot be read.
void reportUnreadable(std::string_view written, const RuntimeError& error, MessageBoxes& boxes);

/// Runs `read` on an open history. False where the disk fails it meanwhile; the player has been shown a
/// message then. A file that ends inside a record is raised.
template <typename Read>
bool readToEnd(std::string_view written, MessageBoxes& boxes, Read read) {
  try {
    read();
    return true;
  } catch (const RuntimeError& error) {
    if (error.is(ErrorNumber::inputPastEnd)) throw;
    reportUnreadable(written, error, boxes);
    return false;
  }
}

/// Whether one of the `count` fields from `first` on, which counts from 0, is `number`.
template <std::size_t Count>
bool containsNumber(const RecordView<Count>& record, std::size_t first, std::size_t count,
                    std::string_view number) {
  bool found = false;
  // All of them are looked at: leaving at the first hit costs more than it saves.
  for (std::size_t i = first; i < first + count; ++i) found |= sameText(record[i], number);
  return found;
}

}  // namespace tallywick
