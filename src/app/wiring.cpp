// SPDX-License-Identifier: GPL-3.0-or-later
// What each control of the main window leads to.
#include "app/application.h"
#include "app/game_pages.h"
#include "search/marks.h"
#include "update/curl_transfer.h"
#include "update/maintenance.h"
#include "update/public_exports.h"

#include <functional>
#include <utility>

namespace tallywick {

void Application::wireMainWindow() {
  wireBar();
  wireMenus();
  wireSearches();
  wireDisplays();
  wireUpdates();
}

void Application::wireBar() {
  MainForm& form = *main_;
  Platform& platform = surroundings_.platform;
  const DataFolder& folder = surroundings_.folder;

  form.bar.Command7.onClick =
      onFiles([&form, &folder, &platform] { Command7_Click(form, folder, platform); });
  form.bar.Command4.onClick = onFiles([&form, &folder] { Command4_Click(form, folder); });
  form.bar.Command8.onClick = [&form] { Command8_Click(form.bar); };
  form.bar.Command48.onClick = onFiles([this, &form] {
    if (const GameInfo* const game = gameOnShow(form.frames)) openSelection(*game);
  });
}

void Application::wireMenus() {
  MainForm& form = *main_;
  MainMenu& menu = form.menu;
  Platform& platform = surroundings_.platform;
  const DataFolder& folder = surroundings_.folder;

  menu.mnuPowerBall.onClick =
      onFiles([&form, &folder, &platform] { mnuPowerBall_Click(form, folder, platform); });
  menu.mnuMegaMillions.onClick = onFiles([&form, &folder] { mnuMegaMillions_Click(form, folder); });
  menu.munSearches.onClick = [&form] { munSearches_Click(form.bar); };
  menu.mnuWinnings.onClick = [&form] { mnuWinnings_Click(form.bar); };
  menu.mnuExit.onClick = [this] { exit(); };
  menu.mnuPowerBall3.onClick = onFiles([this] { openSelection(powerBall); });
  menu.mnuMegaMillions3.onClick = onFiles([this] { openSelection(megaMillions); });
  menu.mnuHelp.onClick = [&platform] { mnuHelp_Click(platform); };
  menu.mnuQZRHelp.onClick = [this] { openSettingPage(surroundings_.settings.webHelp, "web help page"); };
  menu.mnuGameInfo.onClick = [this] { openSettingPage(surroundings_.settings.webSite, "web site"); };
  menu.mnuAbout.onClick = [this] { showAbout(); };
}

void Application::wireSearches() {
  SearchPages& pages = main_->search;
  const GameFrames& frames = main_->frames;
  MessageBoxes& boxes = surroundings_.platform;
  const DataFolder& folder = surroundings_.folder;

  TwoThreePage& twoThree = pages.twoThree;
  for (Button& number : twoThree.numbers) number.onClick = [&number] { toggleMark(number); };
  twoThree.Command37.onClick = [&twoThree] { Command37_Click(twoThree); };
  twoThree.Command38.onClick =
      onFiles([&twoThree, &folder, &boxes] { Command38_Click(twoThree, folder, boxes); });
  twoThree.Command25.onClick =
      onFiles([&twoThree, &folder, &boxes] { Command25_Click(twoThree, folder, boxes); });
  twoThree.Command26.onClick =
      onFiles([&twoThree, &folder, &boxes] { Command26_Click(twoThree, folder, boxes); });

  HavePlayedPage& havePlayed = pages.havePlayed;
  for (Button& number : havePlayed.numbers) {
    number.onClick = [&havePlayed, &number] { havePlayedNumber_Click(havePlayed, number); };
  }
  havePlayed.Command22.onClick = [&havePlayed, &frames] { Command22_Click(havePlayed, frames); };
  havePlayed.Command21.onClick = onFiles(
      [&havePlayed, &frames, &folder, &boxes] { Command21_Click(havePlayed, frames, folder, boxes); });

  PlayedPage& played = pages.played;
  for (Button* display : {&played.Command24, &played.Command29}) {
    display->onClick = [&played, &frames] { Command29_Click(played, frames); };
  }
  played.Command30.onClick =
      onFiles([&played, &frames, &folder, &boxes] { Command30_Click(played, frames, folder, boxes); });

  HavePlayedPlaysPage& plays = pages.havePlayedPlays;
  for (Button& number : plays.numbers) number.onClick = [&number] { toggleMark(number); };
  plays.Command45.onClick = [&plays, &frames] { Command45_Click(plays, frames); };
  plays.Command46.onClick = onFiles([&plays, &havePlayed, &frames, &folder, &boxes] {
    Command46_Click(plays, havePlayed.Combo5, frames, folder, boxes);
  });
}

void Application::wireDisplays() {
  WinningsPage& winnings = main_->winnings;
  DrawsPage& draws = main_->draws;
  const ButtonRow<6>& frequent = main_->summary.frequent;
  const GameFrames& frames = main_->frames;
  const DataFolder& folder = surroundings_.folder;

  winnings.Option1.onClick = [&winnings] { Option1_Click(winnings); };
  winnings.Option2.onClick = [&winnings] { Option2_Click(winnings); };
  winnings.Command47.onClick =
      onFiles([&winnings, &frames, &folder] { Command47_Click(winnings, frames, folder); });

  draws.Command52.onClick =
      onFiles([&draws, &frequent, &folder] { Command52_Click(draws, frequent, folder); });
  draws.Command27.onClick =
      onFiles([&draws, &frequent, &folder] { Command27_Click(draws, frequent, folder); });
  draws.Command3.onClick = onFiles([&draws, &folder] { Command3_Click(draws, folder); });
}

void Application::wireUpdates() {
  UpdatePage& page = main_->update;
  MainMenu& menu = main_->menu;
  Platform& platform = surroundings_.platform;
  const DataFolder& folder = surroundings_.folder;

  page.Command2.onClick = onFiles([this] {
    UpdateSurroundings update = updateSurroundings();
    Command2_Click(update);
  });
  menu.mnuPowerBall2.onClick = onFiles([this] {
    UpdateSurroundings update = updateSurroundings();
    mnuPowerBall2_Click(update);
  });
  menu.mnuMegaMillions2.onClick = onFiles([this] {
    UpdateSurroundings update = updateSurroundings();
    mnuMegaMillions2_Click(update);
  });
  page.Command1.onClick = onFiles([&folder, &platform] { Command1_Click(folder, platform); });
  page.Command51.onClick = onFiles([&folder, &platform] { Command51_Click(folder, platform); });
}

TransferFactory Application::transferFactory() const {
  if (surroundings_.newTransfer) return surroundings_.newTransfer;
  if (fetched_ != nullptr) return fetched_->components();
  return [this] {
    const Surroundings& around = surroundings_;
    if (around.settings.source == Settings::Source::publicExports) {
      return newPublicExports(around.folder, around.clock, {}, &around.platform, around.transferWindow);
    }
    CurlTransferSettings settings;
    settings.tlsRequired = around.settings.tls == Settings::Tls::required;
    return newCurlTransfer(around.folder, around.clock, settings, &around.platform, around.transferWindow);
  };
}

std::string Application::serverOf(Game game) const {
  const Settings& settings = surroundings_.settings;
  return settings.source == Settings::Source::server ? settings.server : exportAddress(settings, game);
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
          [this](Game game) { return serverOf(game); },
          transferFactory(),
          [this] { Command3_Click(main_->draws, surroundings_.folder); }};
}

}  // namespace tallywick
