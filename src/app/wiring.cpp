// SPDX-License-Identifier: GPL-3.0-or-later
// What each control of the main window leads to.
#include "app/application.h"
#include "app/summary_buttons.h"
#include "search/marks.h"
#include "update/curl_transfer.h"
#include "update/maintenance.h"

#include <functional>
#include <utility>

namespace tallywick {

void Application::wireMainWindow() {
  MainForm& form = *main_;
  Platform& platform = surroundings_.platform;
  const DataFolder& folder = surroundings_.folder;

  form.bar.Command7.onClick = onFiles([&] { Command7_Click(form, folder, platform); });
  form.bar.Command4.onClick = onFiles([&] { Command4_Click(form, folder); });
  form.bar.Command8.onClick = [&] { Command8_Click(form.bar); };
  form.bar.Command48.onClick = onFiles([&] {
    if (form.frames.Frame4.visible() || form.frames.Frame6.visible()) {
      openSelection(powerBall);
    } else if (form.frames.Frame11.visible()) {
      openSelection(megaMillions);
    }
  });
  form.update.Command2.onClick = onFiles([&] {
    UpdateSurroundings update = updateSurroundings();
    Command2_Click(update);
  });
  form.update.Command1.onClick = onFiles([&] { Command1_Click(folder, platform); });
  form.update.Command51.onClick = onFiles([&] { Command51_Click(folder, platform); });
  wireMenus();
  wireSearches();
  wireDisplays();
}

void Application::wireMenus() {
  MainForm& form = *main_;
  MainMenu& menu = form.menu;
  Platform& platform = surroundings_.platform;
  const DataFolder& folder = surroundings_.folder;

  menu.mnuPowerBall.onClick = onFiles([&] { mnuPowerBall_Click(form, folder, platform); });
  menu.mnuMegaMillions.onClick = onFiles([&] { mnuMegaMillions_Click(form, folder); });
  menu.munSearches.onClick = [&] {
    form.bar.SSTab1.setTab(1);
    form.bar.SSTab2.setTab(0);
  };
  menu.mnuWinnings.onClick = [&] {
    form.bar.SSTab1.setTab(2);
    form.bar.SSTab3.setTab(1);
  };
  menu.mnuExit.onClick = [this] { exit(); };
  menu.mnuPowerBall2.onClick = onFiles([this] {
    UpdateSurroundings update = updateSurroundings();
    mnuPowerBall2_Click(update);
  });
  menu.mnuMegaMillions2.onClick = onFiles([this] {
    UpdateSurroundings update = updateSurroundings();
    mnuMegaMillions2_Click(update);
  });
  menu.mnuPowerBall3.onClick = onFiles([this] { openSelection(powerBall); });
  menu.mnuMegaMillions3.onClick = onFiles([this] { openSelection(megaMillions); });
  menu.mnuHelp.onClick = [&] {
    platform.show(
        {" Please...,   Press  'F1'  for Help\r\n", " Tallywick Software  ", MessageBox::Icon::exclamation});
  };
  menu.mnuQZRHelp.onClick = [this] { openSettingPage(surroundings_.settings.webHelp, "web help page"); };
  menu.mnuGameInfo.onClick = [this] { openSettingPage(surroundings_.settings.webSite, "web site"); };
  menu.mnuAbout.onClick = [this] { showAbout(); };
}

void Application::wireSearches() {
  MainForm& form = *main_;
  MessageBoxes& boxes = surroundings_.platform;
  const DataFolder& folder = surroundings_.folder;

  TwoThreePage& twoThree = form.search.twoThree;
  for (Button& number : twoThree.numbers) number.onClick = [&number] { toggleMark(number); };
  twoThree.Command37.onClick = [&] { Command37_Click(twoThree); };
  twoThree.Command38.onClick = onFiles([&] { Command38_Click(twoThree, folder, boxes); });
  twoThree.Command25.onClick = onFiles([&] { Command25_Click(twoThree, folder, boxes); });
  twoThree.Command26.onClick = onFiles([&] { Command26_Click(twoThree, folder, boxes); });

  HavePlayedPage& havePlayed = form.search.havePlayed;
  for (Button& number : havePlayed.numbers) {
    number.onClick = [&havePlayed, &number] { havePlayedNumber_Click(havePlayed, number); };
  }
  havePlayed.Command22.onClick = [&] { Command22_Click(havePlayed, form.frames); };
  havePlayed.Command21.onClick = onFiles([&] { Command21_Click(havePlayed, form.frames, folder, boxes); });

  PlayedPage& played = form.search.played;
  for (Button* display : {&played.Command24, &played.Command29}) {
    display->onClick = [&] { Command29_Click(played, form.frames); };
  }
  played.Command30.onClick = onFiles([&] { Command30_Click(played, form.frames, folder, boxes); });

  HavePlayedPlaysPage& plays = form.search.havePlayedPlays;
  for (Button& number : plays.numbers) number.onClick = [&number] { toggleMark(number); };
  plays.Command45.onClick = [&] { Command45_Click(plays, form.frames); };
  plays.Command46.onClick =
      onFiles([&] { Command46_Click(plays, havePlayed.Combo5, form.frames, folder, boxes); });
}

void Application::wireDisplays() {
  MainForm& form = *main_;
  const DataFolder& folder = surroundings_.folder;

  WinningsPage& winnings = form.winnings;
  winnings.Option1.onClick = [&] {
    winnings.Option1.setValue(true);
    winnings.Option2.setValue(false);
  };
  winnings.Option2.onClick = [&] {
    winnings.Option2.setValue(true);
    winnings.Option1.setValue(false);
  };
  winnings.Command47.onClick = onFiles([&] { Command47_Click(winnings, form.frames, folder); });

  form.draws.Command52.onClick = onFiles([&] { Command52_Click(form.draws, form.summary.frequent, folder); });
  form.draws.Command27.onClick = onFiles([&] { Command27_Click(form.draws, form.summary.frequent, folder); });
  form.draws.Command3.onClick = onFiles([&] { Command3_Click(form.draws, folder); });
}

TransferFactory Application::transferFactory() const {
  if (surroundings_.newTransfer) return surroundings_.newTransfer;
  return [this] {
    CurlTransferSettings settings;
    settings.tlsRequired = surroundings_.settings.tls == Settings::Tls::required;
    return newCurlTransfer(surroundings_.folder, surroundings_.clock, settings, &surroundings_.platform,
                           surroundings_.transferWindow);
  };
}

UpdateSurroundings Application::updateSurroundings() {
  MainForm& form = *main_;
  Platform& platform = surroundings_.platform;
  // An update hides the button for good.
  form.updateHiddenByGameSwitch = false;
  return {form.update,
          form.menu.mnuPowerBall2,
          form.menu.mnuMegaMillions2,
          surroundings_.folder,
          surroundings_.clock,
          platform,
          platform,
          platform,
          surroundings_.settings.server,
          transferFactory(),
          [&] { Command3_Click(form.draws, surroundings_.folder); }};
}

}  // namespace tallywick
