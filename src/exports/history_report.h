// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of a game's draws: from when to when, how many, and which are missing.
#pragma once

#include "core/games.h"
#include "exports/entries.h"
#include "exports/game_files.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tallywick {
class DataFolder;
}

namespace tallywick::exports {

/// What the lists show as the amount of each day in a winnings file of this text.
std::map<Day, AmountEntry> shownAmounts(const std::string& text);

struct HistoryReport {
  /// Days of the main history; records without a date do not count.
  std::size_t draws = 0;
  std::optional<Day> first;
  std::optional<Day> newest;
  /// Scheduled draws between the first and the newest that are not there, oldest first.
  std::vector<Day> missing;
  /// Draws that were typed in and that no export has had, newest first: they can be removed.
  std::vector<Day> typed;
  /// The fifteen newest draws' amounts, newest draw first; blank where they are not known.
  std::vector<AmountEntry> newestAmounts;
};

HistoryReport reportOf(const GameInfo& game, const GameFiles& files);

/// The same from a game's folder. RuntimeError where a file cannot be read.
HistoryReport reportOf(const DataFolder& folder, Game game);

}  // namespace tallywick::exports
