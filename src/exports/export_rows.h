// SPDX-License-Identifier: GPL-3.0-or-later
// Real draws and amounts from public exports.
#pragma once

#include "core/games.h"
#include "exports/entries.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallywick::exports {

class CsvTable;

/// A row that is not taken over, and why.
struct RefusedRow {
  std::size_t line;
  std::string reason;
};

struct ImportedDraws {
  /// Newest first.
  std::vector<DrawEntry> draws;
  std::vector<RefusedRow> refused;
};

struct ImportedAmounts {
  std::vector<AmountEntry> amounts;
  std::vector<RefusedRow> refused;
};

/// Takes the columns "Draw Date", "Winning Numbers", "Multiplier" and, where they are there, "Mega Ball" and
/// "Double Play Winning Numbers". White balls are put in ascending order; the extra ball is the sixth number,
/// or the Mega Ball. Rows that hold no draw by the game's rules on their day are refused. std::runtime_error
/// where a column is missing.
ImportedDraws importDraws(Game game, const CsvTable& table);

/// Takes the columns "Draw Date", "Amount" and "Mark Count".
ImportedAmounts importAmounts(const CsvTable& table);

/// The scheduled draws between the oldest and the newest of `draws` that are not among them, oldest first.
std::vector<Day> missingDraws(Game game, const std::vector<DrawEntry>& draws);

}  // namespace tallywick::exports
