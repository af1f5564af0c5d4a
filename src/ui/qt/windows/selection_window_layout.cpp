// SPDX-License-Identifier: GPL-3.0-or-later
// How the selection window is laid out; selection_window.cpp has what it does.
#include "core/words.h"
#include "selection/selection_form.h"
#include "ui/qt/pages/drawn_lists.h"
#include "ui/qt/parts/choice_list.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/hint_panel.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/selection_window.h"
#include "ui/qt/windows/slip.h"

#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <array>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// Of each list, so that a small screen need not scroll.
constexpr int leastRows = 2;
/// The marks, what an action did and what Select will do.
constexpr int hintLines = 4;
/// Over the actions it is wider.
constexpr int pinnedLines = 2;

/// Sentences as wide as their column, with room for two lines at least.
class TwoLines : public Sentences {
 public:
  using Sentences::Sentences;
  QSize sizeHint() const override {
    return {0, std::max(2 * fontMetrics().lineSpacing(), Sentences::sizeHint().height())};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }
};

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
  slipColumn_ = column;
  addDrawCount(*column, side);
  column->addStretch();
  return side;
}

void SelectionWindow::placeHint() {
  const bool isPinned = hintPlace_->count() > 0;
  const int own = isPinned ? hintLines * (fontMetrics().lineSpacing() + 1) + 3 * theme::gap : 0;
  const int slip = slipColumn_->minimumSize().height() + own;
  const int lists = sides_->widget(1)->minimumSizeHint().height();
  const bool areBeside = sides_->orientation() == Qt::Horizontal;
  const int room = centralWidget()->height() - actions_->sizeHint().height() - 2 * theme::gap;
  const bool scrolls = (areBeside ? std::max(slip, lists) : slip + lists) > room;
  if (scrolls == isPinned) return;
  hint_->setLines(scrolls ? pinnedLines : hintLines);
  if (scrolls) {
    slipColumn_->removeWidget(hint_);
    hintPlace_->addWidget(hint_);
  } else {
    hintPlace_->removeWidget(hint_);
    slipColumn_->insertWidget(slipColumn_->indexOf(slip_) + 1, hint_);
  }
}

void SelectionWindow::resizeEvent(QResizeEvent* event) {
  FormWindow::resizeEvent(event);
  placeHint();
}

bool SelectionWindow::event(QEvent* event) {
  const bool isTaken = FormWindow::event(event);
  // In another text size.
  if (event->type() == QEvent::ApplicationFontChange) QTimer::singleShot(0, this, [this] { placeHint(); });
  return isTaken;
}

QLayout* SelectionWindow::actions() {
  auto* line = new Flow;
  line->setContentsMargins(theme::gap, 0, theme::gap, theme::gap);
  const auto add = [&] {
    auto* button = new QPushButton(this);
    line->addWidget(button, true);
    return button;
  };
  // In the place of Select until the model shows it, so that the row has no hole.
  waitingSelect_ = add();
  waitingSelect_->setText(toQString(selection_.Command59.caption()));
  waitingSelect_->setEnabled(false);
  QPushButton* select = add();
  select->setFont(theme::headingFont(select->font()));
  binding().bind(selection_.Command59, *select, withMnemonic('S'));
  binding().bind(selection_.Command9, *add(), withMnemonic('Q'));
  binding().bind(selection_.Command60, *add(), withMnemonic('R'));
  binding().bind(selection_.Command84, *add(), withMnemonic('C'));
  binding().bind(selection_.Command1, *add(), withMnemonic('W'));
  binding().bind(selection_.Command5, *add(), withMnemonic('D'));
  return line;
}

void SelectionWindow::addDrawCount(QBoxLayout& column, QWidget* parent) {
  auto* title = new QLabel(u"How many draws:"_s, parent);
  auto* step = new QPushButton(parent);
  step->setAccessibleDescription(u"Adds a draw; after ten it begins again with one"_s);
  auto* showCount = new QPushButton(parent);
  auto* count = heading(parent);
  new ListFace(count);
  auto* line = new Flow;
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

void SelectionWindow::addBringBack(Flow& line, QWidget* parent) {
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
  QLabel* how = sentences(side);
  how->setText(u"Double-click a play, or press Enter on it, to mark it."_s);
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
