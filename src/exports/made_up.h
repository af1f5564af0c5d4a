// SPDX-License-Identifier: GPL-3.0-or-later
// The mark of a game whose draws are made up.
#pragma once

#include "core/games.h"

#include <filesystem>
#include <string_view>

namespace tallywick {
class DataFolder;
class FileCommit;
}  // namespace tallywick

namespace tallywick::exports {

/// An empty file in the folder of a game with made-up draws.
inline constexpr std::string_view madeUpMark = "SAMPLE.TXT";
/// With this line begins the README that tallywick-setup writes into a data folder.
inline constexpr std::string_view notesHead = "This is a data folder of Tallywick, made by tallywick-setup.";
inline constexpr std::string_view notesFile = "README.txt";

/// Whether the game's draws are made up. A folder of the first release has no mark; its README names such
/// games.
bool isMadeUp(const DataFolder& folder, Game game);

/// Makes the removal of the game's mark a part of `change` in the game's folder, when real draws come. In a
/// folder of the first release both games that need one get their mark first, and the README's claims go:
/// that changes nothing of what is made up.
void stageMarkRemoval(const DataFolder& folder, Game game, FileCommit& change);

}  // namespace tallywick::exports
