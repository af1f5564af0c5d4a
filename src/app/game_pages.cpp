// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/game_pages.h"

#include "core/data_folder.h"
#include "core/text.h"

#include <exception>

namespace tallywick {

namespace {

/// Selects the first tab of all three strips.
void showFirstTabs(NavigationBar& bar) {
  for (TabStrip* tabs : {&bar.SSTab1, &bar.SSTab2, &bar.SSTab3}) tabs->setTab(0);
}

/// Shows one of the game frames and hides the others.
void showGameFrame(GameFrames& frames, const Frame& shown) {
  for (Frame* frame : {&frames.Frame4, &frames.Frame5, &frames.Frame6, &frames.Frame11}) {
    frame->setVisible(frame == &shown);
  }
}

/// Enables the game's update and selection entries and disables the other game's.
void enableMenusOf(MainMenu& menu, const GameInfo& game) {
  const bool isPowerBall = game.game == Game::powerBall;
  menu.mnuPowerBall3.setEnabled(isPowerBall);
  menu.mnuPowerBall2.setEnabled(isPowerBall);
  menu.mnuMegaMillions3.setEnabled(!isPowerBall);
  menu.mnuMegaMillions2.setEnabled(!isPowerBall);
}

/// Lays out the bars, menus and frames for a game. Every search and check control serves every game.
void layOut(MainForm& form, const GameInfo& game) {
  showGameFrame(form.frames, game.game == Game::powerBall ? form.frames.Frame4 : form.frames.Frame11);
  form.frames.Frame12.setVisible(game.game == Game::megaMillions);
  enableMenusOf(form.menu, game);
  showFirstTabs(form.bar);
  form.winnings.Combo10.clear();
}

/// The selection button says which game's window it opens.
void nameSelection(Button& Command48, const GameInfo& game) {
  const std::string caption = join(game.name, " Play Selection");
  Command48.setCaption(caption);
  Command48.setToolTip(caption);
}

void clearLists(MainForm& form) {
  SummaryPage& summary = form.summary;
  for (ListBox* list : {&summary.List1, &summary.List2, &summary.List3, &summary.List4, &summary.List5})
    list->clear();
  for (ListBox* list : {&form.winnings.List14, &form.winnings.List17}) list->clear();
}

void showSummary(MainForm& form, const DataFolder& folder, const GameInfo& game) {
  setSummaryHeadings(form.summary, game);
  nameSelection(form.bar.Command48, game);
  clearLists(form);
  fillAmounts(form.summary, folder, game);
  fillPreviousDraws(form.summary, folder, game);
  fillPlayedPlays(form.winnings, folder, game);
  fillCommittedPlays(form.winnings, folder, game);
  fillLastFifteen(form.summary, folder, game, MissingAmounts::raise);
  fillWinningPlays(form.summary, folder, game);
  fillDrawPickers(form.search, folder, game);
  fillPlayPicker(form.search, folder, game);
  setPlayCaptions(form.search.havePlayedPlays, form.frames);
  fillFrequentNumbers(form.summary, folder, game);
  setSearchCaptions(form.search, newestNumbers(form.summary));
}

/// Fills what the Double Play display names; everything else keeps what it showed, another game's as well.
void showDoublePlayDisplay(MainForm& form, const DataFolder& folder) {
  showGameFrame(form.frames, form.frames.Frame6);
  showDoublePlay(form.summary, folder);
  fillDoublePlayLists(form.search, folder);
  setSearchCaptions(form.search, newestNumbers(form.summary));
}

/// What the game menus do before the summary: the frames that the summary then sets right.
void switchGame(MainForm& form) {
  form.summary.Label21.show();
  form.summary.Label22.show();
  for (Button& number : form.summary.frequent) number.show();
  form.summary.List5.show();
  form.frames.Frame4.hide();
  form.frames.Frame11.show();
}

void showStartingState(MainForm& form, const GameInfo& game) {
  layOut(form, game);
  setSummaryHeadings(form.summary, game);
  nameSelection(form.bar.Command48, game);
  form.search.havePlayed.Label23.setCaption("");
  form.search.played.Label24.setCaption("");
  form.search.twoThree.Label25.setCaption("");
  form.frames.Frame9.show();
  form.frames.Frame1.show();
  form.update.Command2.show();
  form.search.played.Command29.show();
  form.search.played.Command24.hide();
}

template <typename Step>
void skipFailing(Step step) {
  try {
    step();
  } catch (const std::exception&) {
    // Start-up reports nothing: a folder that lacks files shows what it has.
  }
}

}  // namespace

void Command7_Click(MainForm& form, const DataFolder& folder, MessageBoxes& boxes) {
  layOut(form, powerBall);
  if (form.updateHiddenByGameSwitch) form.update.Command2.show();
  form.updateHiddenByGameSwitch = false;
  const MessageBox question = {std::string(doublePlayQuestion), "TALLYWICK SOFTWARE",
                               MessageBox::Icon::question, MessageBox::Buttons::yesNo};
  if (boxes.show(question) == MessageBox::Answer::yes) {
    showDoublePlayDisplay(form, folder);
  } else {
    showSummary(form, folder, powerBall);
  }
}

void Command4_Click(MainForm& form, const DataFolder& folder) {
  layOut(form, megaMillions);
  showSummary(form, folder, megaMillions);
}

void mnuPowerBall_Click(MainForm& form, const DataFolder& folder, MessageBoxes& boxes) {
  switchGame(form);
  Command7_Click(form, folder, boxes);
}

void mnuMegaMillions_Click(MainForm& form, const DataFolder& folder) {
  switchGame(form);
  if (form.update.Command2.visible()) form.updateHiddenByGameSwitch = true;
  form.update.Command2.hide();
  Command4_Click(form, folder);
}

void fillGameOnShow(MainForm& form, const DataFolder& folder) {
  if (form.frames.Frame6.visible()) {
    showDoublePlayDisplay(form, folder);
  } else if (const GameInfo* const game = gameOnShow(form.frames)) {
    showSummary(form, folder, *game);
  }
}

void munSearches_Click(NavigationBar& bar) {
  bar.SSTab1.setTab(1);
  bar.SSTab2.setTab(0);
}

void mnuWinnings_Click(NavigationBar& bar) {
  bar.SSTab1.setTab(2);
  bar.SSTab3.setTab(1);
}

void mnuHelp_Click(MessageBoxes& boxes) {
  boxes.show(
      {" Please...,   Press  'F1'  for Help\r\n", " Tallywick Software  ", MessageBox::Icon::exclamation});
}

void startUp(MainForm& form, const DataFolder& folder) {
  const auto& game = powerBall;
  showStartingState(form, game);
  skipFailing([&] { fillLastFifteen(form.summary, folder, game, MissingAmounts::areBlank); });
  skipFailing([&] { fillWinningPlays(form.summary, folder, game); });
  skipFailing([&] { fillAmounts(form.summary, folder, game); });
  skipFailing([&] { fillPreviousDraws(form.summary, folder, game); });
  skipFailing([&] { fillFrequentNumbers(form.summary, folder, game); });
  setSearchCaptions(form.search, newestNumbers(form.summary));
  skipFailing([&] { fillDrawPickers(form.search, folder, game); });
  skipFailing([&] { fillPlayPicker(form.search, folder, game); });
  setPlayCaptions(form.search.havePlayedPlays, form.frames);
  skipFailing([&] { fillPlayedPlays(form.winnings, folder, game); });
  skipFailing([&] { fillCommittedPlays(form.winnings, folder, game); });
  skipFailing([&] { drawStartUpChart(form.draws, form.summary.frequent, folder); });
}

}  // namespace tallywick
