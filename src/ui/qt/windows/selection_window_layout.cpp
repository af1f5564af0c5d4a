// SPDX-License-Identifier: GPL-3.0-or-later
// How the selection window is laid out; selection_window.cpp has what it does.
#include "core/words.h"
#include "selection/selection_form.h"
#include "ui/qt/pages/drawn_lists.h"
#include "ui/qt/parts/choice_list.h"
#include "ui/qt/parts/hint_panel.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/selection_window.h"
#include "ui/qt/windows/slip.h"

#include <QGridLayout>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <array>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// Of each list, so that a small screen need not scroll.
constexpr int leastRows = 2;
/// The marks, what an action did and what Select will do.
constexpr int hintLines = 4;

/// A sentence with room for two lines, whatever the toolkit would like for it.
class TwoLines : public Sentences {
 public:
  using Sentences::Sentences;
  QSize sizeHint() const override { return {0, 2 * fontMetrics().lineSpacing()}; }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

QPushButton* actionButton(QWidget* parent, QGridLayout& grid, int line, int column) {
  auto* button = new QPushButton(parent);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  grid.addWidget(button, line, column);
  return button;
}

Wording orElse(const QString& captionless) {
  return [captionless](std::string_view caption) {
    return caption.empty() ? captionless : literally()(caption);
  };
}

}  // namespace

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
  auto* title = new QLabel(u"How many draws:"_s, parent);
  auto* step = new QPushButton(parent);
  step->setAccessibleDescription(u"Adds a draw; after ten it begins again with one"_s);
  auto* showCount = new QPushButton(parent);
  auto* count = heading(parent);
  new ListFace(count);
  auto* line = row();
  line->addWidget(title);
  line->addWidget(step);
  line->addWidget(showCount);
  line->addWidget(count);
  line->addStretch();
  addBringBack(*line, parent);
  drawCount_ = new TwoLines(parent);
  drawCount_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  column.addLayout(line);
  column.addWidget(drawCount_);
  binding().bind(selection_.Label1, *count);
  binding().announceChangesOf(selection_.Label1);
  binding().bind(selection_.Command4, *step, withMnemonic('P'));
  binding().bind(selection_.Command7, *showCount, orElse(u"Draw Count"_s));
}

void SelectionWindow::addBringBack(QBoxLayout& line, QWidget* parent) {
  bringBack_ = new QPushButton(parent);
  bringBack_->setToolTip(
      u"Puts back the marks that an action took off without entering a play, and plays that were removed (Ctrl+Z)"_s);
  connect(bringBack_, &QPushButton::clicked, this, [this] { bringBack(); });
  auto* action = new QAction(this);
  action->setShortcut(QKeySequence::Undo);
  connect(action, &QAction::triggered, this, [this] { bringBack(); });
  addAction(action);
  line.addWidget(bringBack_);
}

QWidget* SelectionWindow::listSide() {
  auto* side = new QWidget;
  auto* column = columnIn(side);
  auto* lists = splitter(Qt::Vertical, u"lists"_s);
  lists->addWidget(removableChoice(selection_.Label3, 'U', selection_.Combo1,
                                   removeCurrent_ = new QToolButton, &PlayRemoval::removeCurrent));
  lists->addWidget(headedChoice(selection_.Label28, 'H', selection_.Combo7));
  lists->addWidget(removableChoice(selection_.Label29, 'N', selection_.Combo8, removeNext_ = new QToolButton,
                                   &PlayRemoval::removeNext));
  removeCurrent_->setText(u"Re&move"_s);
  removeNext_->setText(u"R&emove"_s);
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
  choice->list().setLeastRows(leastRows);
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

QWidget* SelectionWindow::removableChoice(Label& label, char mnemonic, ComboBox& combo, QToolButton* button,
                                          Remove act) {
  QWidget* box = headedChoice(label, mnemonic, combo);
  auto& list = *box->findChild<LineList*>();
  auto* column = static_cast<QBoxLayout*>(box->layout());
  button->setFocusPolicy(Qt::StrongFocus);
  button->setToolTip(u"Takes the play that is chosen in this list away; Ctrl+Z brings it back (Delete)"_s);
  auto* line = row();
  line->addItem(column->takeAt(0));
  line->setStretch(0, 1);
  line->addWidget(button);
  column->insertLayout(0, line);
  auto* action = new QAction(u"&Remove This Play"_s, &list);
  action->setShortcut(QKeySequence::Delete);
  action->setShortcutContext(Qt::WidgetShortcut);
  list.addAction(action);
  const auto removeChosen = [this, &list, act] { removeFrom(list, act); };
  connect(action, &QAction::triggered, this, removeChosen);
  connect(button, &QToolButton::clicked, this, removeChosen);
  return box;
}

QWidget* SelectionWindow::savedTexts() {
  auto* box = new QWidget;
  auto* column = columnIn(box);
  column->setSpacing(theme::halfGap);
  auto* title = heading(box, u"Sa&ved Play Texts:"_s);
  auto* saved = new LineList(selection_.List1.items(), box);
  saved->setLeastRows(leastRows);
  showInColumns(*saved, {LineField::whites, LineField::extra}, [this] { return selection_.game.game; });
  saved->setAccessibleName(u"Saved Play Texts"_s);
  title->setBuddy(saved);
  column->addWidget(title);
  column->addWidget(saved, 1);
  binding().bind(selection_.List1, *saved);
  markFrom(*saved, selection_.List1.items());
  return box;
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

}  // namespace tallywick
