// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/selection_window.h"

#include "selection/selection_form.h"
#include "selection/selection_handlers.h"
#include "ui/qt/parts/choice_list.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/layout_memory.h"
#include "ui/qt/windows/slip.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualSize = {880, 720};
/// An item's length: two blanks, the date, six blanks, six numbers with two blanks between.
constexpr int itemColumns = 42;

QPushButton* actionButton(QWidget* parent, QGridLayout& grid, int line, int column) {
  auto* button = new QPushButton(parent);
  // A hidden action keeps its place, so that nothing moves when it comes back.
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  button->setSizePolicy(policy);
  grid.addWidget(button, line, column);
  return button;
}

QWidget* headedChoice(Label& label, char mnemonic, ComboBox& combo, Binding& binding) {
  auto* box = new QWidget;
  auto* column = columnIn(box);
  column->setSpacing(theme::halfGap);
  auto* title = heading(box);
  auto* choice = new ChoiceList(combo.items(), box);
  choice->list().setColumns(itemColumns);
  title->setBuddy(&choice->list());
  column->addWidget(title);
  column->addWidget(choice, 1);
  binding.bind(combo, *choice);
  binding.bind(label, *title, asLabelOfControl(mnemonic));
  return box;
}

Wording orElse(const QString& captionless) {
  return [captionless](std::string_view caption) {
    return caption.empty() ? captionless : literally()(caption);
  };
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
  askBeforeDone();
  binding().afterChanges = [this] { showChosen(); };
  showChosen();
  restoreLayout(*this, usualSize);
  slip_->setFocus();
}

QWidget* SelectionWindow::slipSide() {
  auto* side = new QWidget;
  auto* column = columnIn(side);
  const bool isPowerBall = selection_.game.game == Game::powerBall;
  column->addWidget(
      heading(side, u"Mark five numbers and one %1"_s.arg(isPowerBall ? u"PowerBall"_s : u"Mega Ball"_s)));
  slip_ = new Slip(selection_, binding());
  column->addWidget(slip_, 0, Qt::AlignLeft);
  chosen_ = new QLabel(side);
  chosen_->setTextFormat(Qt::PlainText);
  // However many numbers are marked, the slip keeps its width.
  chosen_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  column->addWidget(chosen_);
  auto* actions = new QGridLayout;
  actions->setSpacing(theme::gap);
  addActions(*actions, side);
  addDrawCount(*actions, side);
  column->addLayout(actions);
  column->addStretch();
  return side;
}

void SelectionWindow::addActions(QGridLayout& grid, QWidget* parent) {
  auto* select = actionButton(parent, grid, 0, 0);
  auto* quickPick = actionButton(parent, grid, 0, 1);
  auto* replay = actionButton(parent, grid, 0, 2);
  auto* done = actionButton(parent, grid, 1, 0);
  auto* clear = actionButton(parent, grid, 1, 1);
  binding().bind(selection_.Command59, *select, withMnemonic('S'));
  binding().bind(selection_.Command9, *quickPick, withMnemonic('Q'));
  binding().bind(selection_.Command60, *replay, withMnemonic('R'));
  binding().bind(selection_.Command5, *done, withMnemonic('D'));
  binding().bind(selection_.Command84, *clear, withMnemonic('C'));
}

void SelectionWindow::addDrawCount(QGridLayout& grid, QWidget* parent) {
  auto* draw = actionButton(parent, grid, 2, 0);
  auto* count = heading(parent);
  count->setFont(theme::listFont(count->font()));
  grid.addWidget(count, 2, 1);
  auto* step = actionButton(parent, grid, 2, 2);
  auto* showCount = actionButton(parent, grid, 1, 2);
  binding().bind(selection_.Command1, *draw, withMnemonic('W'));
  binding().bind(selection_.Label1, *count);
  binding().announceChangesOf(selection_.Label1);
  binding().bind(selection_.Command4, *step, withMnemonic('P'));
  binding().bind(selection_.Command7, *showCount, orElse(u"Draw Count"_s));
}

QWidget* SelectionWindow::listSide() {
  auto* lists = splitter(Qt::Vertical, u"lists"_s);
  lists->addWidget(headedChoice(selection_.Label3, 'U', selection_.Combo1, binding()));
  lists->addWidget(headedChoice(selection_.Label28, 'H', selection_.Combo7, binding()));
  lists->addWidget(headedChoice(selection_.Label29, 'N', selection_.Combo8, binding()));
  auto* box = new QWidget;
  auto* column = columnIn(box);
  column->setSpacing(theme::halfGap);
  auto* title = heading(box, u"Sa&ved Play Texts:"_s);
  auto* saved = new LineList(selection_.List1.items(), box);
  saved->setColumns(itemColumns);
  saved->setAccessibleName(u"Saved Play Texts"_s);
  title->setBuddy(saved);
  column->addWidget(title);
  column->addWidget(saved, 1);
  binding().bind(selection_.List1, *saved);
  lists->addWidget(box);
  return lists;
}

void SelectionWindow::addStatus() {
  std::vector<QLabel*> panels;
  for (std::size_t i = 0; i < selection_.StatusBar1.panels().size(); ++i) {
    auto* panel = new QLabel;
    panel->setTextFormat(Qt::PlainText);
    statusBar()->addWidget(panel, 1);
    panels.push_back(panel);
  }
  binding().bind(selection_.StatusBar1, panels);
}

void SelectionWindow::askBeforeDone() {
  selection_.Command5.onClick = [this, done = selection_.Command5.onClick] {
    if (mayCommit()) done();
  };
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
  const std::size_t plays = playsThatWouldGo(selection_);
  if (plays == 0) return true;
  QMessageBox box(
      QMessageBox::Question, toQString(programTitle),
      plays == 1 ? u"One play that waits for its draw is not among the plays selected here."_s
                 : u"%1 plays that wait for their draws are not among the plays selected here."_s.arg(plays),
      QMessageBox::NoButton, this);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(
      u"Replace takes them off the list of next plays; a dated copy of their file stays in the "
      u"record book. Keep Both puts them behind the new plays."_s);
  auto* replace = box.addButton(u"&Replace"_s, QMessageBox::DestructiveRole);
  auto* keep = box.addButton(u"&Keep Both"_s, QMessageBox::AcceptRole);
  box.setEscapeButton(box.addButton(QMessageBox::Cancel));
  box.setDefaultButton(keep);
  box.exec();
  if (box.clickedButton() == keep) selection_.earlierPlays = EarlierPlays::kept;
  return box.clickedButton() == keep || box.clickedButton() == replace;
}

void SelectionWindow::showChosen() {
  const QString words = chosenInWords(selection_);
  if (chosen_->text() == words) return;
  chosen_->setText(words);
  chosen_->setToolTip(words);
}

QString SelectionWindow::helpPage() const {
  return u"plays.html"_s;
}

void SelectionWindow::keepLayout() {
  saveLayout(*this);
}

void SelectionWindow::keyPressEvent(QKeyEvent* event) {
  const int digit = event->key() - Qt::Key_0;
  if (event->modifiers() & ~Qt::KeypadModifier || digit < 0 || digit > 9) {
    FormWindow::keyPressEvent(event);
    return;
  }
  slip_->typeDigit(digit);
}

}  // namespace tallywick
