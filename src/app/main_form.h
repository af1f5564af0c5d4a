// SPDX-License-Identifier: GPL-3.0-or-later
// The main window, put together from its pages.
#pragma once

#include "controls/controls.h"
#include "display/draws_page.h"
#include "display/summary.h"
#include "display/winning_tickets.h"
#include "frames/game_frames.h"
#include "search/search_pages.h"
#include "update/update_page.h"

namespace tallywick {

/// What is shown around the pages.
struct NavigationBar {
  explicit NavigationBar(Form& form);

  Button Command7;
  Button Command4;
  /// Opens the selection window of the current game, whose name its caption contains.
  Button Command48;
  Button Command8;
  /// The pages: summary, searches, winnings, draws.
  TabStrip SSTab1;
  /// The four panels of the searches.
  TabStrip SSTab2;
  /// The two panels of the winnings: the plays, the check.
  TabStrip SSTab3;
};

/// The menu bar; the order of the members is the order on the screen.
struct MainMenu {
  explicit MainMenu(Form& form);

  /// Opens the menu of what the main window shows.
  MenuEntry mnuFile;
  MenuEntry mnuSpace1;
  MenuEntry mnuPowerBall;
  MenuEntry mnuMegaMillions;
  MenuEntry mnSpace2;
  /// Shows the first panel of the searches.
  MenuEntry munSearches;
  MenuEntry mnuSpace3;
  /// Shows the winning-ticket check.
  MenuEntry mnuWinnings;
  MenuEntry mnuSpace4;
  /// Ends the program.
  MenuEntry mnuExit;

  /// Opens the menu of updates and selections.
  MenuEntry mnuOption;
  /// Opens the list of games to update.
  MenuEntry mnuUpdate;
  MenuEntry mnuPowerBall2;
  MenuEntry mnuMegaMillions2;
  MenuEntry mnuSpace5;
  /// Opens the list of games to select plays for.
  MenuEntry mnuSelections;
  /// Opens the selection window of PowerBall.
  MenuEntry mnuPowerBall3;
  /// Opens the selection window of Mega Millions.
  MenuEntry mnuMegaMillions3;

  /// Opens the help menu.
  MenuEntry mnuHelp2;
  /// Says in a message box that F1 opens the help.
  MenuEntry mnuHelp;
  MenuEntry mnuSpace8;
  /// Opens the web help page of the settings.
  MenuEntry mnuQZRHelp;
  MenuEntry mnuSpace6;
  /// Opens the web site of the settings.
  MenuEntry mnuGameInfo;
  MenuEntry mnuSpace7;
  /// Opens the about box.
  MenuEntry mnuAbout;
};

/// Form1.
class MainForm : public Form {
 public:
  MainForm();

  MainMenu menu;
  NavigationBar bar;
  GameFrames frames;
  SummaryPage summary;
  SearchPages search;
  WinningsPage winnings;
  DrawsPage draws;
  UpdatePage update;

  /// Command2 was hidden by the switch to Mega Millions, not by an update.
  bool updateHiddenByGameSwitch = false;
};

/// Steps SSTab1 from each tab to the next, from the last to the first.
void Command8_Click(NavigationBar& bar);

}  // namespace tallywick
