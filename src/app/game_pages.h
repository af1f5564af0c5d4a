// SPDX-License-Identifier: GPL-3.0-or-later
// The main window laid out and filled for a game: at start-up, by the summary buttons and by the game menus.
#pragma once

#include "app/main_form.h"
#include "core/games.h"

#include <string_view>

namespace tallywick {

/// What Command7 asks.
inline constexpr std::string_view doublePlayQuestion = "Display PowerBall Double Play Information  ?";

/// Shows the summary of PowerBall or, after a question, its Double Play display.
void Command7_Click(MainForm& form, const DataFolder& folder, MessageBoxes& boxes);
/// Shows the summary of Mega Millions.
void Command4_Click(MainForm& form, const DataFolder& folder);

/// Switches the frames, then does what Command7 does.
void mnuPowerBall_Click(MainForm& form, const DataFolder& folder, MessageBoxes& boxes);
/// Switches the frames and hides the update button, then does what Command4 does.
void mnuMegaMillions_Click(MainForm& form, const DataFolder& folder);

/// Shows the first panel of the searches.
void munSearches_Click(NavigationBar& bar);
/// Shows the winning-ticket check.
void mnuWinnings_Click(NavigationBar& bar);
/// Says in a message box that F1 opens the help.
void mnuHelp_Click(MessageBoxes& boxes);

/// Fills the lists of the game on show anew, for draws that have come meanwhile; tabs, menus and the game on
/// show stay.
void fillGameOnShow(MainForm& form, const DataFolder& folder);

/// Opens the main window on PowerBall and fills its summary, its pickers and its chart. A step that fails is
/// skipped: what it feeds stays empty or partly filled.
void startUp(MainForm& form, const DataFolder& folder);

}  // namespace tallywick
