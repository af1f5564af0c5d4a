// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_form.h"

namespace tallywick {

NavigationBar::NavigationBar(Form& form)
    : Command7(form, "Command7", "PowerBall"),
      Command4(form, "Command4", "Mega Millions"),
      Command48(form, "Command48"),
      Command8(form, "Command8", "Next Page"),
      SSTab1(form, "SSTab1", 4),
      SSTab2(form, "SSTab2", 4),
      SSTab3(form, "SSTab3", 2) {}

MainMenu::MainMenu(Form& form)
    : mnuFile(form, "mnuFile", "&File"),
      mnuSpace1(form, "mnuSpace1", "-", mnuFile),
      mnuPowerBall(form, "mnuPowerBall", "Power Ball", mnuFile),
      mnuMegaMillions(form, "mnuMegaMillions", "Mega Millions", mnuFile),
      mnSpace2(form, "mnSpace2", "-", mnuFile),
      munSearches(form, "munSearches", "Searches", mnuFile),
      mnuSpace3(form, "mnuSpace3", "-", mnuFile),
      mnuWinnings(form, "mnuWinnings", "Winnings", mnuFile),
      mnuSpace4(form, "mnuSpace4", "-", mnuFile),
      mnuExit(form, "mnuExit", "Exit", mnuFile),
      mnuOption(form, "mnuOption", "&Option"),
      mnuUpdate(form, "mnuUpdate", "Update", mnuOption),
      mnuPowerBall2(form, "mnuPowerBall2", "Power Ball", mnuUpdate),
      mnuMegaMillions2(form, "mnuMegaMillions2", "Mega Millions", mnuUpdate),
      mnuSpace5(form, "mnuSpace5", "-", mnuOption),
      mnuSelections(form, "mnuSelections", "Selections", mnuOption),
      mnuPowerBall3(form, "mnuPowerBall3", "Power Ball", mnuSelections),
      mnuMegaMillions3(form, "mnuMegaMillions3", "Mega Millions", mnuSelections),
      mnuHelp2(form, "mnuHelp2", "&Help"),
      mnuHelp(form, "mnuHelp", "Help", mnuHelp2),
      mnuSpace8(form, "mnuSpace8", "-", mnuHelp2),
      mnuQZRHelp(form, "mnuQZRHelp", "Tallywick Online Help", mnuHelp2),
      mnuSpace6(form, "mnuSpace6", "-", mnuHelp2),
      mnuGameInfo(form, "mnuGameInfo", "Online PowerBall / Mega Millions Game Information", mnuHelp2),
      mnuSpace7(form, "mnuSpace7", "-", mnuHelp2),
      mnuAbout(form, "mnuAbout", "About:   Tallywick Software", mnuHelp2) {}

MainForm::MainForm()
    : Form("Form1"),
      menu(*this),
      bar(*this),
      frames(*this),
      summary(*this),
      search(*this),
      winnings(*this),
      draws(*this),
      update(*this) {
  setTitle("Tallywick");
}

void Command8_Click(NavigationBar& bar) {
  const int tab = bar.SSTab1.tab();
  if (tab >= 0 && tab <= 3) bar.SSTab1.setTab((tab + 1) % 4);
}

}  // namespace tallywick
