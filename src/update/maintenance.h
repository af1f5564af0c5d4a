// SPDX-License-Identifier: GPL-3.0-or-later
// Play-file maintenance: plays whose draw has taken place move from the committed plays to the front of the
// history.
#pragma once

#include "core/games.h"
#include "core/outside.h"

namespace tallywick {

class DataFolder;

/// Splits the game's committed plays by the date of the newest draw, in the text order of MM-DD-YYYY, and
/// starts the game folder's sort tool. The files change together or not at all. A missing draw file or file
/// of committed plays is error 53, a missing game folder error 76; a missing history contains no plays.
void maintainPlayFiles(const GameInfo& game, const DataFolder& folder, ProgramStarter& programs);

/// Whether the maintenance would move plays of the game.
bool hasDrawnPlays(const GameInfo& game, const DataFolder& folder);

/// Moves the PowerBall plays whose draw has taken place to the history.
void Command1_Click(const DataFolder& folder, ProgramStarter& programs);
/// Moves the Mega Millions plays whose draw has taken place to the history.
void Command51_Click(const DataFolder& folder, ProgramStarter& programs);

}  // namespace tallywick
