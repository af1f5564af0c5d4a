// SPDX-License-Identifier: GPL-3.0-or-later
// What the command line of tallywick-setup asks for.
#pragma once

#include "core/clock.h"
#include "core/games.h"
#include "exports/typed_draws.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

namespace tallywick::setup {

/// The exports of one game; empty where there are none.
struct ExportFiles {
  std::filesystem::path draws;
  std::filesystem::path amounts;
};

struct Options {
  std::filesystem::path folder;
  std::array<ExportFiles, allGames.size()> exports;
  bool forceDraws = false;
  /// The date and the time to go by.
  FixedClock clock = FixedClock(SystemClock());
  std::uint64_t seed = 1;
  bool withoutPlays = false;
  std::filesystem::path tree;
  std::filesystem::path from;
  bool backsUp = false;
  /// Empty for a dated zip beside the folder.
  std::filesystem::path backup;
  std::filesystem::path restoredFrom;
  bool fetches = false;
  /// Addresses in the place of the settings'; empty for these.
  std::string powerBallSource;
  std::string megaMillionsSource;
  /// The game that `typed` is added to; none where no draw is typed in.
  std::optional<Game> addsTo;
  exports::TypedDraw typed;
  bool replacesDraw = false;
  /// The game that the draw of `removedDate` is removed from.
  std::optional<Game> removesFrom;
  std::string removedDate;
};

/// An exit code where the command line says all already: after --help and --version, or where it cannot be
/// understood.
std::optional<int> readOptions(int argc, const char* const* argv, Options& options, std::ostream& out,
                               std::ostream& errors);

}  // namespace tallywick::setup
