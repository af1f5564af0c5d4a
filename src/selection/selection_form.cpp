// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/selection_form.h"

#include "core/file_commit.h"
#include "core/plays.h"
#include "core/text.h"
#include "selection/obstacles.h"
#include "selection/play_lists.h"
#include "selection/selection_handlers.h"

#include <optional>

namespace tallywick {

namespace {

/// The lock on the play files; none, after a message, where another program holds it.
std::optional<os::FileLock> lockPlays(const SelectionForm& form) {
  try {
    return lockFolder(gameFolder(form));
  } catch (const LockedByAnother&) {
    showMessage(
        form.surroundings.boxes,
        "Another program is changing the play files. Please open the play selection again in a moment.",
        MessageBox::Icon::exclamation);
    return std::nullopt;
  }
}

}  // namespace

SelectionForm::SelectionForm(const GameInfo& gameInfo, SelectionSurroundings around)
    : Form(std::string(selectionRulesOf(gameInfo.game).form)),
      game(gameInfo),
      rules(selectionRulesOf(gameInfo.game)),
      surroundings(around),
      Command59(*this, "Command59", "Select"),
      Command9(*this, "Command9", "Quick Pick"),
      Command5(*this, "Command5", "Done"),
      Command60(*this, "Command60", "Replay"),
      Command84(*this, "Command84", "Clear"),
      Command1(*this, "Command1", "Draw"),
      Command4(*this, "Command4", "## PlaysDates"),
      Command7(*this, "Command7"),
      Label1(*this, "Label1", oneDraw),
      Label3(*this, "Label3", "Your Current Play Selection(s):"),
      Combo1(*this, "Combo1"),
      Label28(*this, "Label28", "Your Previous History Plays:"),
      Combo7(*this, "Combo7"),
      Label29(*this, "Label29", "Your Next Play(s) Selections:"),
      Combo8(*this, "Combo8"),
      List1(*this, "List1"),
      StatusBar1(*this, "StatusBar1", 3) {
  setTitle(rules.title);
  for (Button* action : {&Command59, &Command9, &Command5, &Command60, &Command84, &Command1, &Command4}) {
    action->setToolTip(action->caption());
  }
  makeNumbers();
  wire();
}

void SelectionForm::makeNumbers() {
  for (int number = 1; number <= game.lastNumber; ++number) {
    const std::string caption = twoDigits(number);
    auto button = std::make_unique<Button>(*this, numberButtonName(number), caption);
    button->setBackColor(colors::threeDLight);
    button->onClick = [this, number] { Number_Click(*this, number); };
    addAlias(caption, *button);
    numbers.push_back(std::move(button));
  }
}

void SelectionForm::wire() {
  Command59.onClick = [this] { Command59_Click(*this); };
  Command9.onClick = [this] { Command9_Click(*this); };
  Command5.onClick = [this] { Command5_Click(*this); };
  Command60.onClick = [this] { Command60_Click(*this); };
  Command84.onClick = [this] { Command84_Click(*this); };
  Command1.onClick = [this] { Command1_Click(*this); };
  Command4.onClick = [this] { Command4_Click(*this); };
  Command7.onClick = [this] { Command7_Click(*this); };
}

bool SelectionForm::load() {
  unmarkAll();
  Command59.setBackColor(colors::threeDLight);
  Command59.hide();
  Command7.hide();
  Label1.hide();
  Label1.setCaption(oneDraw);
  for (Button* action : {&Command59, &Command9, &Command5, &Command84, &Command7}) action->setEnabled(true);
  for (Button* waiting : {&Command1, &Command4}) waiting->setEnabled(false);

  // Held until all lists are filled: they show the play files of one moment.
  const std::optional<os::FileLock> lock = lockPlays(*this);
  if (lock) {
    emptyCurrentPlays(*this);
  } else {
    closeForPlays();
  }
  showNextPlays(*this);
  const PlayFile history(surroundings.folder, playFilePath(game, PlaySlot::played));
  showHistory(*this, history);
  showSavedTexts(*this);
  const std::size_t played = history.plays().size();
  StatusBar1.setPanel(1, played == 0 ? "" : join(":    ", std::to_string(played)));
  StatusBar1.setPanel(2, "");
  StatusBar1.setPanel(3, "");
  return lock.has_value();
}

void SelectionForm::closeForPlays() {
  for (Button* action : {&Command1, &Command4, &Command5, &Command7, &Command9, &Command59, &Command84}) {
    action->setEnabled(false);
  }
  Label1.setCaption(oneDraw);
  Label1.hide();
}

}  // namespace tallywick
