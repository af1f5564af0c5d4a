// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of public exports: draws and amounts that are taken over, and rows that are refused.
#pragma once

#include "core/games.h"
#include "exports/entries.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallywick::exports {

class CsvReader;

/// A row that is not taken over, and why: at most 80 characters, all of them visible.
struct RefusedRow {
  std::size_t line;
  std::string reason;
};

struct RefusedRows {
  /// So many are kept, the others only counted.
  static constexpr std::size_t mostKept = 20;

  std::vector<RefusedRow> first;
  std::size_t count = 0;
  /// Whether any is good only on a later day.
  bool areLater = false;
  /// The newest one that has a date.
  std::optional<Day> newestDay;
  RefusedRow newest = {};
};

struct ExportedDraws {
  /// Newest first.
  std::vector<DrawEntry> draws;
  RefusedRows refused;
  /// What has been taken over although it is new to the program.
  std::vector<std::string> notices;
};

struct ExportedAmounts {
  /// Newest first.
  std::vector<AmountEntry> amounts;
  RefusedRows refused;
};

/// Takes the columns "Draw Date", "Winning Numbers", "Multiplier" and, where they exist, "Mega Ball" and
/// "Double Play Winning Numbers". White balls are put in ascending order; the extra ball is the sixth number,
/// or the Mega Ball. Rows that contain no draw by the game's rules on their day, and days before the game
/// began or after `today`, are refused. Since the last known change of the rules numbers up to 99 are taken,
/// with a notice. std::runtime_error where a column is missing or a row is too long.
ExportedDraws readDraws(Game game, CsvReader& rows, Day today);

/// Takes the columns "Draw Date", "Amount" and "Mark Count". A row with a blank amount is passed over.
ExportedAmounts readAmounts(Game game, CsvReader& rows, Day today);

/// The scheduled draws between the oldest and the newest of `draws` that are not among them, oldest first.
std::vector<Day> missingDraws(Game game, const std::vector<DrawEntry>& draws);

}  // namespace tallywick::exports
