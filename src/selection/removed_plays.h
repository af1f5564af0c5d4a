// SPDX-License-Identifier: GPL-3.0-or-later
// Plays that are taken off the lists of a selection window, and brought back.
#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace tallywick {

class SelectionForm;

/// A record that was taken off the file of the current plays.
struct RemovedPlay {
  std::string record;
  /// How many records come before its place.
  std::size_t place = 0;
};

/// Takes the play of that line of the current plays away. std::runtime_error where the file is not what the
/// window shows; LockedByAnother where another program is changing it. Nothing is done then.
RemovedPlay removeCurrentPlay(SelectionForm& form, std::size_t line);

/// Puts it back to its place, or behind the last play where there are fewer by now.
void bringCurrentPlayBack(SelectionForm& form, const RemovedPlay& play);

/// The number of the record, from 1, of that line of the next plays among the committed ones; none where the
/// file is not what the window shows.
std::optional<std::size_t> recordOfNextPlay(const SelectionForm& form, std::size_t line);

}  // namespace tallywick
