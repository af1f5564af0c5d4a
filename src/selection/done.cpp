// SPDX-License-Identifier: GPL-3.0-or-later
// Done: the current plays become the committed ones.
#include "core/eras.h"
#include "core/file_commit.h"
#include "core/plays.h"
#include "core/text.h"
#include "selection/draw_count.h"
#include "selection/draw_dates.h"
#include "selection/obstacles.h"
#include "selection/play_lists.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tallywick {

namespace {

/// What the status bar shows of the committed plays.
struct CommittedCounts {
  std::size_t plays = 0;
  std::string firstDate;
  std::size_t playsOfFirstDate = 0;
};

CommittedCounts countsOf(const std::vector<Play>& plays) {
  if (plays.empty()) return {};
  const std::string_view first = plays.front().date;
  const auto ofFirst =
      std::count_if(plays.begin(), plays.end(), [&](const Play& play) { return play.date == first; });
  return {plays.size(), std::string(first), static_cast<std::size_t>(ofFirst)};
}

/// Every play once for each date: all for the first date, then all for the second, and so on.
std::vector<Play> repeated(const std::vector<Play>& plays, const std::vector<std::string>& dates) {
  std::vector<Play> all;
  all.reserve(plays.size() * dates.size());
  for (const std::string& date : dates) {
    for (Play play : plays) {
      play.date = date;
      all.push_back(play);
    }
  }
  return all;
}

std::string textOf(const std::vector<Play>& plays) {
  std::string text;
  for (const Play& play : plays) appendRecord(text, play);
  return text;
}

/// The dates of the draws for which the plays are entered: the first play's, and the draw days after it.
std::vector<std::string> drawDates(const SelectionForm& form, const std::vector<Play>& plays, int draws) {
  const DataFolder& folder = form.surroundings.folder;
  if (plays.empty()) {
    requireCalendar(folder);
    return {};
  }
  return drawDatesFrom(folder, drawDayCodes(form.game.game), plays.front().date, draws);
}

/// What a Done shows afterwards.
struct Committed {
  CommittedCounts counts;
  PlayFile history;
};

/// Replaces the committed plays by what the current plays' file contains, empties that file and writes the
/// copy, all three or none.
Committed commit(const SelectionForm& form, int draws) {
  const DataFolder& folder = form.surroundings.folder;
  FileCommit files(gameFolder(form));
  const PlayFile current(folder, playFilePath(form, PlaySlot::current));
  // Read first: once the plays are committed nothing may fail any more.
  PlayFile history(folder, playFilePath(form, PlaySlot::played));
  std::vector<std::string> dates;
  std::vector<Play> plays = current.plays();
  if (draws > 1) {
    dates = drawDates(form, plays, draws);
    plays = repeated(plays, dates);
  }
  const std::string text = textOf(plays);
  // Entered for one draw the current plays change their name only, and keep every byte.
  files.stage(playFileName(form.game, PlaySlot::committed), draws > 1 ? text : current.text());
  files.stage(playFileName(form.game, PlaySlot::current), {});
  files.stage(saveFileName(form.game, PlaySlot::committed), text);
  files.commit();
  if (draws > 1) {
    std::error_code ignored;  // the plays are committed; a work file that stays is in nobody's way
    std::filesystem::remove(folder.resolve(playFilePath(form, PlaySlot::multiDraw)), ignored);
  }
  return {countsOf(plays), std::move(history)};
}

void showCommitted(StatusBar& bar, const CommittedCounts& committed) {
  bar.setPanel(1, join("Lotto Plays: ", std::to_string(committed.plays)));
  bar.setPanel(2, "");
  bar.setPanel(3, committed.plays == 0 ? ""
                                       : join(committed.firstDate, "  for  ",
                                              std::to_string(committed.playsOfFirstDate), "  Plays."));
}

/// The items of the plays' list as the file has them.
std::vector<std::string> itemsOf(const PlayFile& file) {
  std::vector<std::string> items;
  for (const Play& play : file.plays()) {
    if (play.isListed()) items.push_back(play.itemText());
  }
  return items;
}

}  // namespace

bool showsCurrentPlays(const SelectionForm& form) {
  const PlayFile current(form.surroundings.folder, playFilePath(form, PlaySlot::current));
  const std::vector<std::string> items = itemsOf(current);
  const TextLines& shown = form.Combo1.items();
  if (shown.size() != items.size()) return false;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (shown[i] != items[i]) return false;
  }
  return true;
}

void Command5_Click(SelectionForm& form) {
  std::optional<Committed> committed;
  const int draws = drawCountOf(form.Label1.caption());
  if (!entered(form, [&] { committed.emplace(commit(form, draws)); })) return;
  form.closeForPlays();
  showHistory(form, committed->history);
  showCommitted(form.StatusBar1, committed->counts);
}

}  // namespace tallywick
