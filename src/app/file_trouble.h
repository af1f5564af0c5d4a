// SPDX-License-Identifier: GPL-3.0-or-later
// What is wrong with the files of a game, said before anything stumbles over it.
#pragma once

#include "core/games.h"

#include <optional>
#include <string>
#include <vector>

namespace tallywick {

class DataFolder;

struct FileTrouble {
  /// Whether a file of plays is torn; else one of draws or amounts is missing.
  bool isTorn;
  /// A sentence and what follows it: which file, and what the player should do.
  std::string heading;
  std::string text;
  /// How a torn file is mended; paragraphs with an empty line between.
  std::string mending = {};
};

/// The files of the game that are looked at, as they are written for the data folder.
std::vector<std::string> filesWatched(const GameInfo& game);

/// None where the files are whole, and where the game has no draws at all. Raises what reading them raises.
std::optional<FileTrouble> troubleOf(const GameInfo& game, const DataFolder& folder);

/// "The file of the PowerBall draws (QZRNUM6.Dat) is missing."; empty where none of the files is missing, or
/// all are.
std::string missingDrawFiles(const GameInfo& game, const DataFolder& folder);

}  // namespace tallywick
