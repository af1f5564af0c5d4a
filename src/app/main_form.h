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

/// What stands around the pages.
struct NavigationBar {
  explicit NavigationBar(Form& form);

  /// The PowerBall and the Mega Millions summary.
  Button Command7;
  Button Command4;
  /// Play selection of the current game.
  Button Command48;
  /// Steps SSTab1 to its next tab.
  Button Command8;
  /// Summary, searches, winnings, draws.
  TabStrip SSTab1;
  /// The search panels.
  TabStrip SSTab2;
  /// The plays, the check.
  TabStrip SSTab3;
};

/// The menu bar; the order of the members is the order on the screen.
struct MainMenu {
  explicit MainMenu(Form& form);

  MenuEntry mnuFile;
  MenuEntry mnuSpace1;
  MenuEntry mnuPowerBall;
  MenuEntry mnuMegaMillions;
  MenuEntry mnSpace2;
  MenuEntry munSearches;
  MenuEntry mnuSpace3;
  MenuEntry mnuWinnings;
  MenuEntry mnuSpace4;
  MenuEntry mnuExit;

  MenuEntry mnuOption;
  MenuEntry mnuUpdate;
  MenuEntry mnuPowerBall2;
  MenuEntry mnuMegaMillions2;
  MenuEntry mnuSpace5;
  MenuEntry mnuSelections;
  MenuEntry mnuPowerBall3;
  MenuEntry mnuMegaMillions3;

  MenuEntry mnuHelp2;
  MenuEntry mnuHelp;
  MenuEntry mnuSpace8;
  MenuEntry mnuQZRHelp;
  MenuEntry mnuSpace6;
  MenuEntry mnuGameInfo;
  MenuEntry mnuSpace7;
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

/// Command8: from each tab of SSTab1 to the next, from the last to the first.
void Command8_Click(NavigationBar& bar);

}  // namespace tallywick
