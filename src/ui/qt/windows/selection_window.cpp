// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/selection_window.h"

#include "core/runtime_error.h"
#include "core/text.h"
#include "core/words.h"
#include "display/judging.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"
#include "ui/qt/pages/drawn_lists.h"
#include "ui/qt/parts/choice_list.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/hint_panel.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/layout_memory.h"
#include "ui/qt/windows/slip.h"

#include <QAction>
#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>
#include <array>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize = {960, 760};
/// The marks, what an action did and what Select will do.
constexpr int hintLines = 4;

QPushButton* actionButton(QWidget* parent, QGridLayout& grid, int line, int column) {
  auto* button = new QPushButton(parent);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  grid.addWidget(button, line, column);
  return button;
}

HintPanel::Kind kindOf(MarksHint::Kind kind) {
  if (kind == MarksHint::Kind::ready) return HintPanel::Kind::ready;
  return kind == MarksHint::Kind::warning ? HintPanel::Kind::warning : HintPanel::Kind::advice;
}

Wording orElse(const QString& captionless) {
  return [captionless](std::string_view caption) {
    return caption.empty() ? captionless : literally()(caption);
  };
}

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

}  // namespace

SelectionWindow::SelectionWindow(SelectionForm& form, const Desk& desk)
    : FormWindow(form, desk), selection_(form) {
  auto* content = new QWidget;
  auto* sides = new QHBoxLayout(content);
  sides->setContentsMargins(theme::pageMargin, theme::pageMargin, theme::pageMargin, theme::pageMargin);
  sides->setSpacing(theme::pageMargin);
  sides->addWidget(slipSide());
  sides->addWidget(listSide(), 1);
  auto* scroller = new QScrollArea;
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setWidgetResizable(true);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setWidget(content);
  setCentralWidget(scroller);
  addStatus();
  answerHelpKey();
  surroundActions();
  binding().afterChanges = [this] { showState(); };
  showState();
  restoreLayout(*this, usualSize);
  slip_->setFocus();
}

QWidget* SelectionWindow::slipSide() {
  auto* side = new QWidget;
  auto* column = columnIn(side);
  column->addWidget(
      heading(side, u"Mark five numbers and one %1"_s.arg(toQString(extraBallName(selection_.game.game)))));
  slip_ = new Slip(selection_, binding());
  column->addWidget(slip_, 0, Qt::AlignLeft);
  hint_ = new HintPanel(hintLines, side);
  column->addWidget(hint_);
  auto* actions = new QGridLayout;
  actions->setSpacing(theme::gap);
  addActions(*actions, side);
  column->addLayout(actions);
  addDrawCount(*column, side);
  addBringBack(*column, side);
  column->addStretch();
  return side;
}

void SelectionWindow::addActions(QGridLayout& grid, QWidget* parent) {
  // In the place of Select until the model shows it, so that the row has no hole.
  waitingSelect_ = actionButton(parent, grid, 0, 0);
  waitingSelect_->setText(toQString(selection_.Command59.caption()));
  waitingSelect_->setEnabled(false);
  auto* select = actionButton(parent, grid, 0, 0);
  auto* quickPick = actionButton(parent, grid, 0, 1);
  auto* replay = actionButton(parent, grid, 0, 2);
  auto* clear = actionButton(parent, grid, 1, 0);
  auto* draw = actionButton(parent, grid, 1, 1);
  auto* done = actionButton(parent, grid, 1, 2);
  select->setFont(theme::headingFont(select->font()));
  binding().bind(selection_.Command59, *select, withMnemonic('S'));
  binding().bind(selection_.Command9, *quickPick, withMnemonic('Q'));
  binding().bind(selection_.Command60, *replay, withMnemonic('R'));
  binding().bind(selection_.Command84, *clear, withMnemonic('C'));
  binding().bind(selection_.Command1, *draw, withMnemonic('W'));
  binding().bind(selection_.Command5, *done, withMnemonic('D'));
}

void SelectionWindow::addDrawCount(QBoxLayout& column, QWidget* parent) {
  auto* title = new QLabel(u"For how many draws:"_s, parent);
  auto* step = new QPushButton(parent);
  auto* showCount = new QPushButton(parent);
  auto* count = heading(parent);
  new ListFace(count);
  auto* line = row();
  line->addWidget(title);
  line->addWidget(step);
  line->addWidget(showCount);
  line->addWidget(count);
  line->addStretch();
  drawCount_ = new QLabel(parent);
  drawCount_->setTextFormat(Qt::PlainText);
  drawCount_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  column.addLayout(line);
  column.addWidget(drawCount_);
  binding().bind(selection_.Label1, *count);
  binding().announceChangesOf(selection_.Label1);
  binding().bind(selection_.Command4, *step, withMnemonic('P'));
  binding().bind(selection_.Command7, *showCount, orElse(u"Draw Count"_s));
}

void SelectionWindow::addBringBack(QBoxLayout& column, QWidget* parent) {
  bringBack_ = new QPushButton(u"&Bring Marks Back"_s, parent);
  bringBack_->setToolTip(u"Puts back the marks that an action took off without entering a play"_s);
  connect(bringBack_, &QPushButton::clicked, this, [this] { bringBack(); });
  auto* action = new QAction(this);
  action->setShortcut(QKeySequence::Undo);
  connect(action, &QAction::triggered, this, [this] { bringBack(); });
  addAction(action);
  auto* keys = new QLabel(u"Ctrl+Z"_s, parent);
  auto* line = row();
  line->addWidget(bringBack_);
  line->addWidget(keys);
  line->addStretch();
  column.addLayout(line);
}

QWidget* SelectionWindow::listSide() {
  auto* side = new QWidget;
  auto* column = columnIn(side);
  auto* lists = splitter(Qt::Vertical, u"lists"_s);
  lists->addWidget(headedChoice(selection_.Label3, 'U', selection_.Combo1));
  lists->addWidget(headedChoice(selection_.Label28, 'H', selection_.Combo7));
  lists->addWidget(headedChoice(selection_.Label29, 'N', selection_.Combo8));
  lists->addWidget(savedTexts());
  column->addWidget(lists, 1);
  auto* how = new QLabel(u"Double-click a play, or press Enter on it, to mark it."_s, side);
  column->addWidget(how);
  return side;
}

QWidget* SelectionWindow::headedChoice(Label& label, char mnemonic, ComboBox& combo) {
  auto* box = new QWidget;
  auto* column = columnIn(box);
  column->setSpacing(theme::halfGap);
  auto* title = heading(box);
  auto* choice = new ChoiceList(combo.items(), box);
  const GameOfLines gameOf = [this] { return selection_.game.game; };
  const bool arePlayed = &combo == &selection_.Combo7;
  showInColumns(choice->list(), arePlayed ? playFieldsShown : drawFieldsShown, gameOf);
  if (arePlayed) highlightMatches(choice->list(), desk().judge);
  title->setBuddy(&choice->list());
  column->addWidget(title);
  column->addWidget(choice, 1);
  binding().bind(combo, *choice);
  binding().bind(label, *title, asLabelOfControl(mnemonic));
  markFrom(choice->list(), combo.items());
  return box;
}

QWidget* SelectionWindow::savedTexts() {
  auto* box = new QWidget;
  auto* column = columnIn(box);
  column->setSpacing(theme::halfGap);
  auto* title = heading(box, u"Sa&ved Play Texts:"_s);
  auto* saved = new LineList(selection_.List1.items(), box);
  showInColumns(*saved, {LineField::whites, LineField::extra}, [this] { return selection_.game.game; });
  saved->setAccessibleName(u"Saved Play Texts"_s);
  title->setBuddy(saved);
  column->addWidget(title);
  column->addWidget(saved, 1);
  binding().bind(selection_.List1, *saved);
  markFrom(*saved, selection_.List1.items());
  return box;
}

void SelectionWindow::markFrom(LineList& list, const TextLines& items) {
  const auto mark = [this, &items](const QModelIndex& index) {
    const auto line = static_cast<std::size_t>(index.row());
    if (!index.isValid() || binding().isReleased() || line >= items.size()) return;
    desk().runner.run([this, &items, line] {
      std::string left;
      removed_.watch(selection_, [&] { left = markLine(selection_, items[line]); });
      note(toQString(left));
    });
  };
  connect(&list, &QAbstractItemView::doubleClicked, this, mark);
  auto* action = new QAction(u"&Mark These Numbers"_s, &list);
  action->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
  action->setShortcutContext(Qt::WidgetShortcut);
  connect(action, &QAction::triggered, &list, [&list, mark] { mark(list.currentIndex()); });
  list.addAction(action);
}

void SelectionWindow::addStatus() {
  const std::array<QString, 3> names = {u"Earlier plays"_s, u"Plays selected:"_s, u"First draw:"_s};
  std::vector<QLabel*> panels;
  for (std::size_t i = 0; i < selection_.StatusBar1.panels().size(); ++i) {
    auto* label = new QLabel(names.at(i));
    auto* panel = new QLabel;
    panel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(label);
    statusBar()->addWidget(panel, 1);
    statusLabels_.push_back(label);
    panels.push_back(panel);
  }
  binding().bind(selection_.StatusBar1, panels);
}

void SelectionWindow::showStatusLabels() {
  const std::vector<std::string>& panels = selection_.StatusBar1.panels();
  for (std::size_t i = 0; i < panels.size(); ++i) {
    // After Done the first panel names itself.
    const bool named = i == 0 ? panels[i].starts_with(':') : !panels[i].empty();
    statusLabels_[i]->setVisible(named);
  }
}

void SelectionWindow::surroundActions() {
  const auto watch = [this](Button& button, const std::function<QString(bool tookOff)>& says) {
    button.onClick = [this, says, act = button.onClick] { note(says(removed_.watch(selection_, act))); };
  };
  const auto bringsBack = [](const QString& name) {
    return [name](bool tookOff) {
      return tookOff ? u"%1 took marks off; Ctrl+Z brings them back."_s.arg(name) : QString();
    };
  };
  watch(selection_.Command59, bringsBack(u"Select"_s));
  watch(selection_.Command84, bringsBack(u"Clear"_s));
  watch(selection_.Command9, [](bool) { return QString(); });
  watch(selection_.Command60, [this](bool) { return toQString(replayHint(selection_)); });
  selection_.Command5.onClick = [this, done = selection_.Command5.onClick] {
    if (!mayCommit()) return;
    done();
    if (!selection_.Command5.enabled()) afterDone();
  };
}

void SelectionWindow::afterDone() {
  saved_ = true;
  desk().runner.attempt([this] {
    note(toQString(committedHint(selection_)));
    if (desk().playsSaved) desk().playsSaved(selection_.game);
  });
}

void SelectionWindow::bringBack() {
  if (binding().isReleased() || !bringBack_->isEnabled()) return;
  desk().runner.run([this] {
    removed_.bringBack(selection_);
    note({});
  });
}

void SelectionWindow::note(const QString& text) {
  note_ = text;
  notedMarks_ = marksHint(selection_).marks;
}

void SelectionWindow::showState() {
  const MarksHint hint = marksHint(selection_);
  if (!saved_ && hint.marks != notedMarks_) note_.clear();
  const bool open = selection_.Command84.enabled();
  if (saved_) {
    hint_->show(HintPanel::Kind::ready, note_, u"Open the play selection again to select more plays."_s);
  } else if (!note_.isEmpty()) {
    const QString marks = toQString(hint.marks);
    hint_->show(HintPanel::Kind::warning, marks,
                note_ + (marks.isEmpty() ? u""_s : u"\n"_s + toQString(hint.text)));
  } else {
    hint_->show(kindOf(hint.kind), toQString(hint.marks), toQString(hint.text));
  }
  waitingSelect_->setVisible(!selection_.Command59.visible());
  bringBack_->setEnabled(open && !removed_.empty());
  const QString draws = toQString(sentence(drawCountHint(selection_)));
  drawCount_->setText(draws.isEmpty() && open ? u"Select a play first, then Draw."_s : draws);
  showStatusLabels();
}

bool SelectionWindow::mayClose() {
  if (binding().isReleased() || !hasPlaysToLose(selection_)) return true;
  const std::size_t plays = selection_.Combo1.items().size();
  QMessageBox box(QMessageBox::Question, toQString(programTitle),
                  plays == 1 ? u"One selected play is not saved yet."_s
                             : u"%1 selected plays are not saved yet."_s.arg(plays),
                  QMessageBox::NoButton, this);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(u"Only plays that Done has saved are kept for their draws."_s);
  auto* drop = box.addButton(plays == 1 ? u"&Drop It"_s : u"&Drop Them"_s, QMessageBox::DestructiveRole);
  auto* back = box.addButton(u"&Back to the Plays"_s, QMessageBox::RejectRole);
  box.setDefaultButton(back);
  box.setEscapeButton(back);
  box.exec();
  return box.clickedButton() == drop;
}

bool SelectionWindow::mayCommit() {
  return finishEarlierChange(selection_) && mayCommitTheFile() && mayReplace();
}

bool SelectionWindow::mayCommitTheFile() {
  if (showsCurrentPlays(selection_)) return true;
  const MessageBox question = {
      "The file of the current plays is not what this window shows: another program has changed it.\r\n"
      "Done commits what the file contains now. Go on?",
      std::string(programTitle), MessageBox::Icon::question, MessageBox::Buttons::yesNo};
  return selection_.surroundings.boxes.show(question) == MessageBox::Answer::yes;
}

bool SelectionWindow::mayReplace() {
  selection_.earlierPlays = EarlierPlays::replaced;
  const GoingPlays going = playsThatWouldGo(selection_);
  if (going.plays == 0 && !going.isTorn) return true;
  QMessageBox box(QMessageBox::Question, toQString(programTitle),
                  u"Not among the plays selected here: %1."_s.arg(
                      sortsOf(going, selection_.game, selection_.surroundings.folder)),
                  QMessageBox::NoButton, this);
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
  if (box.clickedButton() == keep) selection_.earlierPlays = EarlierPlays::kept;
  return box.clickedButton() == keep || box.clickedButton() == replace;
}

QString SelectionWindow::helpPage() const {
  return u"plays.html"_s;
}

void SelectionWindow::keepLayout() {
  saveLayout(*this);
}

void SelectionWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
    close();
    return;
  }
  const int digit = event->key() - Qt::Key_0;
  if (event->modifiers() & ~Qt::KeypadModifier || digit < 0 || digit > 9) {
    FormWindow::keyPressEvent(event);
    return;
  }
  slip_->typeDigit(digit);
}

bool maySelectionsClose(const GameInfo* game) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* window = dynamic_cast<SelectionWindow*>(widget);
    if (window == nullptr || window->binding().isReleased()) continue;
    if ((game == nullptr || &window->game() == game) && !window->mayClose()) return false;
  }
  return true;
}

}  // namespace tallywick
