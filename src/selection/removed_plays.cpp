// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/removed_plays.h"

#include "core/file_commit.h"
#include "core/plays.h"
#include "core/text.h"
#include "core/work_files.h"
#include "selection/play_lists.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <stdexcept>

namespace tallywick {

namespace {

constexpr std::string_view otherFile =
    "The plays have changed since they were shown. Nothing was done; open the play selection again.";

/// The records by the lines that show them.
std::vector<std::size_t> listedRecords(const std::vector<Play>& plays, std::string_view onlyDate = {}) {
  std::vector<std::size_t> records;
  for (std::size_t i = 0; i < plays.size(); ++i) {
    if (plays[i].isListed() && (onlyDate.empty() || plays[i].date == onlyDate)) records.push_back(i + 1);
  }
  return records;
}

/// Writes the file, and lists and counts what is in it.
void replaceCurrent(SelectionForm& form, const std::string& text) {
  const std::vector<Play> plays = wholePlays(text, {}).plays;
  replaceFile(form.surroundings.folder.resolve(playFilePath(form.game, PlaySlot::current)), text);
  form.Combo1.clear();
  for (const std::size_t record : listedRecords(plays)) form.Combo1.add(plays[record - 1].itemText());
  const TextLines& listed = form.Combo1.items();
  if (!listed.empty()) form.Combo1.setText(listed[listed.size() - 1]);
  form.StatusBar1.setPanel(2, plays.empty() ? "" : std::to_string(plays.size()));
}

}  // namespace

RemovedPlay removeCurrentPlay(SelectionForm& form, std::size_t line) {
  const os::FileLock lock = lockFolder(gameFolder(form));
  const std::string name = playFilePath(form.game, PlaySlot::current);
  std::string text(openPlays(form.surroundings.folder, name).text());
  const WholePlays whole = wholePlays(text, name);
  const std::vector<std::size_t> records = listedRecords(whole.plays);
  if (!whole.torn.empty() || !showsCurrentPlays(form) || line >= records.size())
    throw std::runtime_error(std::string(otherFile));
  const std::size_t place = records[line] - 1;
  const std::size_t begin = place == 0 ? 0 : whole.ends[place - 1];
  RemovedPlay removed = {{}, place};
  appendRecord(removed.record, whole.plays[place]);
  text.erase(begin, whole.ends[place] - begin);
  replaceCurrent(form, text);
  return removed;
}

void bringCurrentPlayBack(SelectionForm& form, const RemovedPlay& play) {
  const os::FileLock lock = lockFolder(gameFolder(form));
  const std::string name = playFilePath(form.game, PlaySlot::current);
  std::string text = endedText(PlayFile(form.surroundings.folder, name));
  const WholePlays whole = wholePlays(text, name);
  if (!whole.torn.empty()) throw std::runtime_error(std::string(otherFile));
  const std::size_t place = std::min(play.place, whole.ends.size());
  text.insert(place == 0 ? 0 : whole.ends[place - 1], play.record);
  replaceCurrent(form, text);
}

std::optional<std::size_t> recordOfNextPlay(const SelectionForm& form, std::size_t line) {
  const PlayFile committed(form.surroundings.folder, playFilePath(form.game, PlaySlot::committed));
  if (committed.empty()) return std::nullopt;
  const std::vector<Play>& plays = committed.plays();
  const std::vector<std::size_t> records = listedRecords(plays, plays.front().date);
  const TextLines& shown = form.Combo8.items();
  if (shown.size() != records.size() || line >= records.size()) return std::nullopt;
  for (std::size_t i = 0; i < records.size(); ++i) {
    if (shown[i] != plays[records[i] - 1].itemText()) return std::nullopt;
  }
  return records[line];
}

}  // namespace tallywick
