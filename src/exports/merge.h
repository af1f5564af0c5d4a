// SPDX-License-Identifier: GPL-3.0-or-later
// What a game folder's files become when draws and amounts are added to them.
#pragma once

#include "core/games.h"
#include "exports/entries.h"
#include "exports/export_rows.h"
#include "exports/game_files.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallywick::exports {

/// What a merge found and did.
struct MergeReport {
  /// Whether a file changes.
  bool changesFiles = false;
  /// How many draws were given to it.
  std::size_t draws = 0;
  std::size_t newDraws = 0;
  /// Days whose draw had been there with other numbers or another multiplier, newest first.
  std::vector<Day> changedDraws;
  std::size_t newAmounts = 0;
  RefusedRows refused;
  RefusedRows refusedAmounts;
  std::vector<std::string> notices;
  /// Scheduled draws that are missing from the main history afterwards, oldest first.
  std::vector<Day> missing;
};

struct Merge {
  /// Those that change.
  std::vector<NewFile> files;
  MergeReport report;
};

/// Whether the draws and amounts of a folder are real.
enum class DrawOrigin { real, madeUp };

/// Merges draws and amounts, both in any order, into the files by date. A draw replaces numbers and
/// multiplier of its day in all histories, and Double Play numbers where it has them; every other draw and
/// field stays. An amount replaces all records of its day, every other one stays. Each of the fifteen newest
/// draws has an amounts record, blank where the amount is not known, and the last record, which nothing uses,
/// is one copy of the one before it. While fewer than a hundred draws are in the Double Play history, the
/// newest ones are added with blank Double Play numbers, because the displays need them. None of the draws
/// counts as typed in any more. Made-up files are replaced as a whole.
Merge mergeInto(Game game, const std::vector<DrawEntry>& draws, const std::vector<AmountEntry>& amounts,
                const GameFiles& files, DrawOrigin origin = DrawOrigin::real);

/// The same for a whole export. std::runtime_error where it has fewer than 101 draws, or fewer than half of
/// those in the files, or where a row newer than every draw is refused.
Merge mergeExport(Game game, const ExportedDraws& draws, const ExportedAmounts& amounts,
                  const GameFiles& files, DrawOrigin origin);

}  // namespace tallywick::exports
