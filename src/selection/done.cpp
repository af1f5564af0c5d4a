// SPDX-License-Identifier: GPL-3.0-or-later
// Done: the current plays become the committed ones.
#include "core/dated_copies.h"
#include "core/eras.h"
#include "core/file_commit.h"
#include "core/journal.h"
#include "core/plays.h"
#include "core/text.h"
#include "selection/draw_dates.h"
#include "selection/obstacles.h"
#include "selection/play_lists.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <map>
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

std::string playsText(const std::vector<Play>& plays) {
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

/// What Done makes of the current plays, as far as other files decide about it.
struct NextPlays {
  std::vector<std::string> dates;
  std::vector<Play> plays;
};

/// The plays of the file once for each draw. Raises CalendarGap.
NextPlays nextPlays(const SelectionForm& form, const PlayFile& current, int draws) {
  NextPlays next{{}, current.plays()};
  if (draws > 1) {
    next.dates = drawDates(form, next.plays, draws);
    next.plays = repeated(next.plays, next.dates);
  }
  return next;
}

/// The committed plays before a Done.
struct EarlierFile {
  explicit EarlierFile(const SelectionForm& form)
      : reader(openPlays(form.surroundings.folder, playFilePath(form.game, PlaySlot::committed))),
        whole(wholePlays(reader.text(), playFileName(form.game, PlaySlot::committed))) {}

  bool isTorn() const { return !whole.torn.empty(); }

  SequentialReader reader;
  WholePlays whole;
};

/// The earlier plays that are not among `next`. A play that is there twice needs two equal ones to stay.
std::vector<Play> playsNotAmong(const std::vector<Play>& next, const std::vector<Play>& earlier) {
  std::map<std::string, int> kept;
  for (const Play& play : next) ++kept[playsText({play})];
  std::vector<Play> gone;
  for (const Play& play : earlier) {
    if (kept[playsText({play})]-- <= 0) gone.push_back(play);
  }
  return gone;
}

/// What a Done shows afterwards.
struct Committed {
  CommittedCounts counts;
  PlayFile history;
};

/// Replaces the committed plays by what the current plays' file contains, empties that file and writes the
/// copies, all of it or nothing. Earlier plays that would be lost stay as a dated copy of their file.
Committed commit(const SelectionForm& form, int draws) {
  const DataFolder& folder = form.surroundings.folder;
  FileCommit files(gameFolder(form));
  const PlayFile current(folder, playFilePath(form.game, PlaySlot::current));
  // Read first: once the plays are committed nothing may fail any more.
  PlayFile history(folder, playFilePath(form.game, PlaySlot::played));
  auto [dates, plays] = nextPlays(form, current, draws);
  const EarlierFile earlier(form);
  const std::vector<Play> gone = playsNotAmong(plays, earlier.whole.plays);
  const bool bothKept = form.earlierPlays == EarlierPlays::kept && !gone.empty();
  if (bothKept) plays.insert(plays.end(), gone.begin(), gone.end());
  const std::string name = playFileName(form.game, PlaySlot::committed);
  const bool somethingGoes = earlier.isTorn() || (!gone.empty() && !bothKept);
  const std::string copy = somethingGoes ? stageDatedCopy(files, name, form.surroundings.clock) : "";
  const std::string text = playsText(plays);
  // Entered for one draw the current plays change their name only, and keep every byte.
  files.stage(name, draws > 1 || bothKept ? text : current.text());
  files.stage(playFileName(form.game, PlaySlot::current), {});
  files.stage(saveFileName(form.game, PlaySlot::committed), text);
  files.commit();
  if (somethingGoes) pruneDatedCopies(files.folder(), name, copy);
  if (draws > 1) {
    std::error_code ignored;  // the plays are committed; a work file that stays is in nobody's way
    std::filesystem::remove(folder.resolve(playFilePath(form.game, PlaySlot::multiDraw)), ignored);
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

bool finishEarlierChange(const SelectionForm& form) {
  return tryToEnter(form, [&] { recoverFolder(gameFolder(form)); });
}

bool showsCurrentPlays(const SelectionForm& form) {
  const PlayFile current(form.surroundings.folder, playFilePath(form.game, PlaySlot::current));
  const std::vector<std::string> items = itemsOf(current);
  const TextLines& shown = form.Combo1.items();
  if (shown.size() != items.size()) return false;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (shown[i] != items[i]) return false;
  }
  return true;
}

GoingPlays playsThatWouldGo(const SelectionForm& form) {
  const PlayFile current(form.surroundings.folder, playFilePath(form.game, PlaySlot::current));
  const EarlierFile earlier(form);
  try {
    const NextPlays next = nextPlays(form, current, drawCountOf(form.Label1.caption()));
    std::vector<Play> gone = playsNotAmong(next.plays, earlier.whole.plays);
    std::erase_if(gone, [](const Play& play) { return !play.isListed(); });
    return {gone.size(), playsText(gone), earlier.isTorn()};
  } catch (const CalendarGap&) {
    return {};
  }
}

void Command5_Click(SelectionForm& form) {
  std::optional<Committed> committed;
  const int draws = drawCountOf(form.Label1.caption());
  if (!tryToEnter(form, [&] { committed.emplace(commit(form, draws)); })) return;
  form.closeForPlays();
  showHistory(form, committed->history);
  showCommitted(form.StatusBar1, committed->counts);
}

}  // namespace tallywick
