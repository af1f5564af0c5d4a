// SPDX-License-Identifier: GPL-3.0-or-later
// The plays of a sample, once its game has real draws.
#pragma once

#include "core/games.h"

#include <cstddef>

namespace tallywick {

class Clock;
class DataFolder;

/// How many plays are in the game's files.
std::size_t countPlays(const GameInfo& game, const DataFolder& folder);

/// Empties the play files and the saved texts of the game as one change. What was in them stays as dated
/// copies. LockedByAnother where another program is at work in the folder.
void takePlaysAway(const GameInfo& game, const DataFolder& folder, const Clock& clock);

}  // namespace tallywick
