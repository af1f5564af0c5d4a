// SPDX-License-Identifier: GPL-3.0-or-later
// Reading export files, and what the user is told about them.
#pragma once

#include "core/games.h"
#include "exports/entries.h"

#include <filesystem>
#include <iosfwd>
#include <vector>

namespace tallywick::exports {

/// Newest first.
struct ExportedGame {
  std::vector<DrawEntry> draws;
  std::vector<AmountEntry> amounts;
};

/// Reads the exports of a game and reports what was taken, refused and is missing. `amounts` may be empty.
/// std::runtime_error where a file cannot be used at all.
ExportedGame readExports(Game game, const std::filesystem::path& draws, const std::filesystem::path& amounts,
                         std::ostream& out);

}  // namespace tallywick::exports
