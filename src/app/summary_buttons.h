// SPDX-License-Identifier: GPL-3.0-or-later
// The summary buttons and the game switch: they lay out the main window for a game and fill its pages.
#pragma once

#include "app/main_form.h"
#include "core/games.h"

namespace tallywick {

/// PowerBall, or after a question its Double Play.
void Command7_Click(MainForm& form, const DataFolder& folder, MessageBoxes& boxes);
/// Mega Millions.
void Command4_Click(MainForm& form, const DataFolder& folder);

/// The game menus: they switch frames first and run the game's summary then.
void mnuPowerBall_Click(MainForm& form, const DataFolder& folder, MessageBoxes& boxes);
void mnuMegaMillions_Click(MainForm& form, const DataFolder& folder);

/// Selects the first tab of all three strips.
void showFirstTabs(NavigationBar& bar);
/// Shows one of Frame4, Frame6 and Frame11 and hides the other game frames.
void showGameFrame(GameFrames& frames, const Frame& shown);
/// Enables the game's update and selection entries and disables the other game's.
void enableMenusOf(MainMenu& menu, const GameInfo& game);

}  // namespace tallywick
