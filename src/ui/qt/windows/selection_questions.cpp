// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/selection_questions.h"

#include "core/runtime_error.h"
#include "display/judging.h"
#include "selection/hints.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"
#include "ui/qt/parts/wording.h"

#include <QMessageBox>
#include <QPushButton>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// "one play that waits for its draw, 2 plays that are drawn already".
QString sortsOf(const GoingPlays& going, const GameInfo& game, const DataFolder& folder) {
  std::size_t waiting = 0;
  std::size_t drawn = 0;
  try {
    for (const JudgedPlay& play : judgePlays(game, folder, {}, going.records).plays) {
      if (play.state == DrawState::waiting) ++waiting;
      if (play.state == DrawState::drawn) ++drawn;
    }
  } catch (const RuntimeError&) {
    // Without a history of draws no play is known to be drawn or to wait.
  }
  QStringList sorts;
  const auto add = [&](std::size_t plays, const QString& one, const QString& several) {
    if (plays > 0) sorts += plays == 1 ? one : several.arg(plays);
  };
  add(waiting, u"one play that waits for its draw"_s, u"%1 plays that wait for their draws"_s);
  add(drawn, u"one play that is drawn already"_s, u"%1 plays that are drawn already"_s);
  add(going.plays - waiting - drawn, u"one play whose draw is not known"_s,
      u"%1 plays whose draws are not known"_s);
  if (going.isTorn) sorts += u"a torn record"_s;
  return sorts.join(u", "_s);
}

/// Asks where the file of the current plays is not what the window shows.
bool confirmChangedFile(const SelectionForm& form) {
  if (showsCurrentPlays(form)) return true;
  const MessageBox question = {
      "The file of the current plays is not what this window shows: another program has changed it.\r\n"
      "Done commits what the file contains now. Go on?",
      std::string(programTitle), MessageBox::Icon::question, MessageBox::Buttons::yesNo};
  return form.surroundings.boxes.show(question) == MessageBox::Answer::yes;
}

/// Asks what becomes of committed plays that would go: Replace, Keep Both, Cancel. False for Cancel.
bool chooseEarlierPlays(SelectionForm& form, QWidget* parent) {
  form.earlierPlays = EarlierPlays::replaced;
  const GoingPlays going = playsThatWouldGo(form);
  if (going.plays == 0 && !going.isTorn) return true;
  QMessageBox box(
      QMessageBox::Question, toQString(programTitle),
      u"Not among the plays selected here: %1."_s.arg(sortsOf(going, form.game, form.surroundings.folder)),
      QMessageBox::NoButton, parent);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(
      u"Replace takes them off the list of next plays; a dated copy of their file stays in the "
      u"record book. Keep Both puts %1 behind the new plays."_s.arg(
          going.isTorn ? u"all but the torn record, which stays in such a copy,"_s : u"them"_s));
  auto* replace = box.addButton(u"&Replace"_s, QMessageBox::DestructiveRole);
  auto* keep = box.addButton(u"&Keep Both"_s, QMessageBox::AcceptRole);
  box.setEscapeButton(box.addButton(QMessageBox::Cancel));
  box.setDefaultButton(keep);
  box.exec();
  if (box.clickedButton() == keep) form.earlierPlays = EarlierPlays::kept;
  return box.clickedButton() == keep || box.clickedButton() == replace;
}

}  // namespace

bool confirmDone(SelectionForm& form, QWidget* parent) {
  return finishEarlierChange(form) && confirmChangedFile(form) && chooseEarlierPlays(form, parent);
}

bool confirmReplayed(const SelectionForm& form, const std::string& replayed) {
  const std::string question = replayQuestion(form, replayed);
  if (question.empty()) return true;
  return form.surroundings.boxes.show({question, std::string(programTitle), MessageBox::Icon::question,
                                       MessageBox::Buttons::yesNo}) == MessageBox::Answer::yes;
}

bool settleUnsavedPlays(SelectionForm& form, QWidget* parent) {
  if (!hasPlaysToLose(form)) return true;
  const std::size_t plays = form.Combo1.items().size();
  QMessageBox box(QMessageBox::Question, toQString(programTitle),
                  plays == 1 ? u"One selected play is not saved yet."_s
                             : u"%1 selected plays are not saved yet."_s.arg(plays),
                  QMessageBox::NoButton, parent);
  box.setTextFormat(Qt::PlainText);
  const QString draws = toQString(drawCountHint(form));
  box.setInformativeText(
      u"Save does what Done does: it keeps %1 for %2."_s.arg(plays == 1 ? u"it"_s : u"them"_s)
          .arg(draws.isEmpty() ? u"the next draw"_s : draws));
  auto* save = box.addButton(u"&Save"_s, QMessageBox::AcceptRole);
  auto* drop = box.addButton(u"Do&n't Save"_s, QMessageBox::DestructiveRole);
  auto* stay = box.addButton(QMessageBox::Cancel);
  box.setDefaultButton(save);
  box.setEscapeButton(stay);
  box.exec();
  if (box.clickedButton() != save) return box.clickedButton() == drop;
  click(form.Command5);
  // Where Done asks, and the answer is no, it saves nothing.
  return !hasPlaysToLose(form);
}

}  // namespace tallywick
