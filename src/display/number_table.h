// SPDX-License-Identifier: GPL-3.0-or-later
// How often each number of a game came up, when it came last, and what chance alone would give.
#pragma once

#include "core/day.h"
#include "core/games.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class DataFolder;

struct NumberCount {
  int number = 0;
  /// In the newest hundred draws.
  std::size_t recent = 0;
  /// The sum of the number's chances in them; it has none in a draw from a smaller range.
  double recentByChance = 0;
  /// In all draws.
  std::size_t all = 0;
  double allByChance = 0;
  /// None where it never came up.
  std::optional<Day> last;
  /// How many draws are newer than the last one with the number; all where it never came up.
  std::size_t since = 0;
};

/// From 1 to the highest number that a counted draw could have had.
struct NumberTable {
  std::vector<NumberCount> white;
  std::vector<NumberCount> extra;
  /// How many draws were counted.
  std::size_t draws = 0;
  /// Where the history ends in a cut record: what is missing. What comes before is counted.
  std::string torn;
};

enum class DrawHistory : std::uint8_t { main, doublePlay };

/// Counts a history, newest draw first, in one pass. Passed over are draws before the game's first era, those
/// whose date is no day, and Double Play records without numbers. A number beyond the range of its draw is
/// not counted.
NumberTable countNumbers(Game game, DrawHistory history, std::string_view draws);

/// The same for the history of the game's folder. Error 53 where it is missing.
NumberTable countNumbers(const GameInfo& game, DrawHistory history, const DataFolder& folder);

/// The columns of the table.
enum class NumberColumn : std::uint8_t { number, recent, recentByChance, all, allByChance, since, last };

/// By the column, those of one value by their number.
void sortNumbers(std::vector<NumberCount>& counts, NumberColumn column, bool descending);

/// A line of the table: the columns in their order with blanks between, "never" in the place of a last day.
std::string numberLine(const NumberCount& count);

}  // namespace tallywick
