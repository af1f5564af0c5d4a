// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/start_up.h"

#include "app/summary_buttons.h"
#include "core/data_folder.h"
#include "core/runtime_error.h"

#include <exception>
#include <utility>

namespace tallywick {

namespace {

template <typename Step>
void skipFailing(Step step) {
  try {
    step();
  } catch (const std::exception&) {
    // Start-up says nothing: a folder that lacks files shows what it has.
  }
}

void showPowerBall(MainForm& form) {
  setSummaryHeadings(form.summary, powerBall);
  form.bar.Command48.setToolTip("PowerBall Play Selection");
  form.bar.Command48.setCaption("PowerBall Play Selection");
  form.search.havePlayed.Label23.setCaption("");
  form.search.played.Label24.setCaption("");
  form.search.twoThree.Label25.setCaption("");
  showFirstTabs(form.bar);
  showGameFrame(form.frames, form.frames.Frame4);
  form.frames.Frame9.show();
  form.frames.Frame1.show();
  form.frames.Frame12.hide();
  enableMenusOf(form.menu, powerBall);
  form.update.Command2.show();
  form.search.played.Command29.show();
  form.search.played.Command24.hide();
}

}  // namespace

void startUp(MainForm& form, const DataFolder& folder) {
  const auto& game = powerBall;
  showPowerBall(form);
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
