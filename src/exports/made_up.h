// SPDX-License-Identifier: GPL-3.0-or-later
// The mark of a game whose draws are made up.
#pragma once

#include "core/games.h"

#include <filesystem>
#include <string_view>

namespace tallywick {
class DataFolder;
}

namespace tallywick::exports {

/// An empty file in the folder of a game with made-up draws.
inline constexpr std::string_view madeUpMark = "SAMPLE.TXT";
/// With this line begins the README that tallywick-setup writes into a data folder.
inline constexpr std::string_view notesHead = "This is a data folder of Tallywick, made by tallywick-setup.";
inline constexpr std::string_view notesFile = "README.txt";

/// Whether the game's draws are made up. A folder of the first release has no mark; its README names such
/// games.
bool isMadeUp(const DataFolder& folder, Game game);

/// Takes the mark away, when real draws have come. In a folder of the first release the other game gets its
/// mark first, if it needs one, and the README's claim goes. Not in the middle of a change of the data folder
/// itself.
void removeMadeUpMark(const DataFolder& folder, Game game);

}  // namespace tallywick::exports
