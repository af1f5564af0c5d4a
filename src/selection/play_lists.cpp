// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/play_lists.h"

#include "core/plays.h"
#include "core/text.h"
#include "core/work_files.h"
#include "selection/selection_form.h"

namespace tallywick {

namespace {

/// Adds a play, and shows the first one as the box's text.
void list(ComboBox& box, const Play& play) {
  const std::string item = play.itemText();
  if (box.items().empty()) box.setText(item);
  box.add(item);
}

}  // namespace

std::filesystem::path gameFolder(const SelectionForm& form) {
  return form.surroundings.folder.resolve(form.game.folder);
}

void emptyCurrentPlays(SelectionForm& form) {
  replaceFile(form.surroundings.folder.resolve(playFilePath(form.game, PlaySlot::current)), {});
  form.Combo1.clear();
}

std::string endedText(const PlayFile& file) {
  std::string text(file.text());
  if (text.empty() || text.ends_with('\n') || text.ends_with('\r')) return text;
  const std::string_view lastField = file.plays().back().decades;
  const bool endsInField = lastField.data() + lastField.size() == file.text().data() + file.text().size();
  if (text.ends_with(',') && !endsInField) text.pop_back();
  return text.append("\r\n");
}

void showNextPlays(SelectionForm& form) {
  const PlayFile committed(form.surroundings.folder, playFilePath(form.game, PlaySlot::committed));
  form.Combo8.clear();
  for (const Play& play : committed.plays()) {
    if (play.isListed() && play.date == committed.plays().front().date) list(form.Combo8, play);
  }
}

void showHistory(SelectionForm& form, const PlayFile& history) {
  form.Combo7.clear();
  for (const Play& play : history.plays()) {
    if (play.isListed()) list(form.Combo7, play);
  }
  form.Command60.setEnabled(!history.empty());
}

void showSavedTexts(SelectionForm& form) {
  form.List1.clear();
  const std::string file = inFolder(form.game, savedTextsFileName(form.game));
  if (!form.surroundings.folder.exists(file)) return;
  SequentialReader texts(form.surroundings.folder, file);
  while (!texts.atEnd()) form.List1.add(join(" ", texts.field()));
}

}  // namespace tallywick
