// SPDX-License-Identifier: GPL-3.0-or-later
// Select: forms the play from the marks, checks it, dates it and adds it to the current plays.
#include "core/eras.h"
#include "core/file_commit.h"
#include "core/plays.h"
#include "core/text.h"
#include "core/work_files.h"
#include "selection/draw_dates.h"
#include "selection/marked_play.h"
#include "selection/obstacles.h"
#include "selection/play_lists.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <array>

namespace tallywick {

namespace {

/// Takes the first refused extra mark off and shows a message.
bool refuseExtra(SelectionForm& form) {
  const int number = refusedExtra(form);
  if (number == 0) return false;
  form.surroundings.boxes.show({std::string(form.rules.invalidExtra),
                                std::string(form.rules.invalidExtraTitle), MessageBox::Icon::exclamation});
  setMark(form.button(number), Mark::none);
  return true;
}

/// A play that owns its texts.
struct DatedPlay {
  std::string date;
  std::array<std::string, 6> numbers;
  std::string decades;

  Play view() const {
    return {date, {numbers[0], numbers[1], numbers[2], numbers[3], numbers[4]}, numbers[5], decades};
  }
};

DatedPlay date(const SelectionForm& form, const MarkedPlay& play) {
  const SelectionSurroundings& around = form.surroundings;
  DatedPlay dated = {drawDateOfPlayMadeNow(around.folder, around.clock, drawDayCodes(form.game.game)),
                     {},
                     decadePattern(form.game, play.main())};
  std::transform(play.places.begin(), play.places.end(), dated.numbers.begin(), twoDigits);
  return dated;
}

/// Appends the play to the current plays, in one step: the file never contains a part of a record.
void append(SelectionForm& form, const Play& play) {
  const DataFolder& folder = form.surroundings.folder;
  const std::string name = playFilePath(form.game, PlaySlot::current);
  const os::FileLock lock = lockFolder(gameFolder(form));
  const PlayFile current(folder, name);
  std::string text = endedText(current);
  appendRecord(text, play);
  replaceFile(folder.resolve(name), text);

  form.Combo1.clear();
  for (const Play& earlier : current.plays()) {
    if (earlier.isListed()) form.Combo1.add(earlier.itemText());
  }
  form.Combo1.setText(play.itemText());
  form.Combo1.add(play.itemText());
  form.StatusBar1.setPanel(2, std::to_string(current.plays().size() + 1));
}

}  // namespace

void Command59_Click(SelectionForm& form) {
  const MarkedPlay play = markedPlay(form);
  if (refuseExtra(form)) return;
  if (const std::string_view text = complaint(form.rules, play); !text.empty()) {
    form.surroundings.boxes.show({std::string(text), std::string(form.rules.countTitle)});
    form.unmarkAll();
    return;
  }
  if (!tryToEnter(form, [&] { append(form, date(form, play).view()); })) return;
  form.Command1.setEnabled(true);
  form.unmarkAll();
}

}  // namespace tallywick
