// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/winnings_view.h"

#include "app/main_form.h"
#include "core/runtime_error.h"
#include "display/judging.h"
#include "plays/check_explained.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/pages/drawn_lists.h"
#include "ui/qt/pages/my_plays_view.h"
#include "ui/qt/pages/ticket_view.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"
#include "ui/qt/windows/form_window.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// What screen readers say after a line that is emphasised.
const QString winningMeaning = u"winning"_s;

const QString beforeCheck = u"What each play's own draw says is shown here after a check."_s;

LineList* titledList(QSplitter& side, const QString& title, ListBox& list, const QString& whenEmpty,
                     Binding& binding) {
  auto* box = new QWidget;
  auto* column = columnIn(box);
  auto* label = heading(box, title);
  auto* lines = new LineList(list.items(), box);
  label->setBuddy(lines);
  lines->setAccessibleName(QString(title).remove(u'&'));
  lines->setPlaceholder(whenEmpty);
  column->addWidget(label);
  column->addWidget(lines, 1);
  side.addWidget(box);
  binding.bind(list, *lines);
  return lines;
}

void showWinningLines(LineList& list) {
  list.lineModel()->setStandOut(
      [](std::size_t, std::string_view line) { return line.find(winningTicket) != std::string_view::npos; },
      winningMeaning);
}

/// The lines of plays in columns; of the drawn plays with what they matched.
void showPlaysInColumns(const WinningsView& view, const MainForm& form, PlayJudge& judge) {
  const GameOfLines gameOf = gameOnShowOf(form.frames);
  for (const char* name : {"List10", "List11", "List17"}) {
    showInColumns(*view.findChild<LineList*>(QString::fromLatin1(name)), drawFieldsShown, gameOf);
  }
  auto& drawn = *view.findChild<LineList*>(u"List14"_s);
  showInColumns(drawn, playFieldsShown, gameOf);
  highlightMatches(drawn, judge);
}

/// The plays that a check found to have won.
void showEmphasisedLines(LineList& lines, const ListBox& list) {
  lines.lineModel()->setStandOut(
      [&list](std::size_t, std::string_view line) {
        return std::ranges::find(list.emphasis(), line) != list.emphasis().end();
      },
      winningMeaning);
}

}  // namespace

WinningsView::WinningsView(MainForm& form, FormWindow& window) : form_(form), actions_(form, window) {
  Binding& binding = window.binding();
  setDocumentMode(true);
  addTab(plays(form, binding), u"Pla&ys"_s);
  addTab(check(form, binding), u"Chec&k"_s);
  binding.bind(form.bar.SSTab3, *this);
  showPlaysInColumns(*this, form, window.desk().judge);
  myPlays_ = new MyPlaysView(actions_, this);
  ticket_ = new TicketView(actions_, this);
  addTab(myPlays_, u"My P&lays"_s);
  addTab(ticket_, u"Check a T&icket"_s);
  explainCheck(form);
  connect(this, &QTabWidget::currentChanged, this, &WinningsView::dropStaleExplanation);
  // The model may have the check in front already, while the window shows a tab of its own.
  form.menu.mnuWinnings.onClick = [this, go = form.menu.mnuWinnings.onClick, &strip = form.bar.SSTab3] {
    go();
    setCurrentIndex(strip.tab());
  };
}

void WinningsView::showChanges() {
  dropStaleExplanation();
  showWhoseCheck();
  titleNumbers();
  myPlays_->refresh();
  ticket_->refresh();
}

void WinningsView::showMyPlays(PlayFilter filter) {
  setCurrentWidget(myPlays_);
  myPlays_->showOnly(filter);
}

QWidget* WinningsView::plays(MainForm& form, Binding& binding) {
  auto* page = new QWidget;
  auto* lists = splitter(Qt::Horizontal, u"plays"_s);
  showEmphasisedLines(*titledList(*lists, u"Plays Already Dr&awn"_s, form.winnings.List14,
                                  u"No play's draw has taken place yet."_s, binding),
                      form.winnings.List14);
  titledList(*lists, u"Plays &to Be Drawn"_s, form.winnings.List17, u"No play waits for its draw."_s,
             binding);
  auto* movePowerBall = new QPushButton(page);
  auto* moveMegaMillions = new QPushButton(page);
  auto* buttons = row();
  buttons->addWidget(movePowerBall);
  buttons->addWidget(moveMegaMillions);
  buttons->addStretch();
  auto* column = columnIn(page, theme::pageMargin);
  column->addWidget(lists, 1);
  column->addLayout(buttons);
  binding.bind(form.update.Command1, *movePowerBall, withMnemonic('V'));
  binding.bind(form.update.Command51, *moveMegaMillions, withMnemonic('G'));
  return page;
}

QWidget* WinningsView::check(MainForm& form, Binding& binding) {
  WinningsPage& winnings = form.winnings;
  auto* page = new QWidget;
  auto* latest = new QRadioButton(page);
  auto* byDate = new QRadioButton(page);
  auto* run = new QPushButton(page);
  auto* choice = row(theme::pageMargin);
  choice->addWidget(new QLabel(u"Check against:"_s, page));
  for (QWidget* widget :
       {static_cast<QWidget*>(latest), static_cast<QWidget*>(byDate), static_cast<QWidget*>(run)})
    choice->addWidget(widget);
  choice->addStretch();

  auto* verdict = new Picker(winnings.Combo10.items(), page);
  verdict->setResultsOnly();
  verdict_ = verdict->lineEdit();
  auto* verdictLabel = heading(page, u"&Verdict"_s);
  verdictLabel->setBuddy(verdict);
  verdict->setAccessibleName(u"Verdict"_s);
  headline_ = sentences(page);
  headline_->setFont(theme::headingFont(headline_->font()));
  auto* verdictLine = row(theme::pageMargin);
  verdictLine->addWidget(verdict);
  verdictLine->addWidget(headline_, 1);
  explained_ = sentences(page);
  explained_->setText(beforeCheck);
  auto* lists = splitter(Qt::Horizontal, u"check"_s);
  showWinningLines(*titledList(*lists, u"Winnin&g Tickets"_s, winnings.List11, {}, binding));
  numbers_ = titledList(*lists, u"Their Num&bers and Double Play"_s, winnings.List10, {}, binding);
  showWinningLines(*numbers_);

  auto* column = columnIn(page, theme::pageMargin);
  column->addLayout(choice);
  column->addWidget(verdictLabel);
  column->addLayout(verdictLine);
  column->addWidget(explained_);
  column->addWidget(lists, 1);
  binding.bind(winnings.Option1, *latest, withMnemonic('E'));
  binding.bind(winnings.Option2, *byDate, withMnemonic('A'));
  binding.bind(winnings.Command47, *run, withMnemonic('T'));
  binding.bind(winnings.Combo10, *verdict);
  binding.announceChangesOf(winnings.Combo10);
  return page;
}

void WinningsView::explainCheck(MainForm& form) {
  form.winnings.Command47.onClick = [this, check = form.winnings.Command47.onClick, &form] {
    check();
    checkedGame_ = &actions_.game();
    showExplanation(form);
  };
}

void WinningsView::showExplanation(const MainForm& form) {
  QStringList lines;
  QString headline;
  explainedGame_ = nullptr;
  try {
    const GameInfo& game = actions_.game();
    explainedPlays_ = actions_.plays();
    for (const std::string& sentence : checkExplained(form.winnings, game, explainedPlays_->judgement)) {
      lines += toQString(sentence);
    }
    headline = lines.takeFirst();
    explainedGame_ = &game;
  } catch (const RuntimeError& error) {
    lines += u"The plays cannot be judged: %1"_s.arg(toQString(error.what()));
  }
  headline_->setText(headline);
  verdict_->setPlaceholderText(headline.isEmpty() ? QString() : u"no verdict; the count is beside"_s);
  explained_->setText(lines.join(u'\n'));
  for (QLabel* label : {headline_, explained_}) {
    QAccessibleEvent alert(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
  }
}

void WinningsView::showWhoseCheck() {
  if (explainedGame_ != nullptr) return;
  const bool isOther = checkedGame_ != nullptr && checkedGame_ != &actions_.game() && listsTickets();
  headline_->setText(isOther ? u"The lists below are still those of %1."_s.arg(toQString(checkedGame_->name))
                             : QString());
}

bool WinningsView::listsTickets() const {
  return !form_.winnings.List10.items().empty() || !form_.winnings.List11.items().empty();
}

void WinningsView::titleNumbers() {
  const GameInfo* const game = checkedGame_ != nullptr && listsTickets() ? checkedGame_ : &actions_.game();
  const QString title =
      game->game == Game::powerBall ? u"Their Num&bers and Double Play"_s : u"Their Num&bers"_s;
  numbers_->parentWidget()->findChild<QLabel*>({}, Qt::FindDirectChildrenOnly)->setText(title);
  numbers_->setAccessibleName(QString(title).remove(u'&'));
}

void WinningsView::dropStaleExplanation() {
  if (explainedGame_ == nullptr || !explained_->isVisible()) return;
  const GameInfo& game = actions_.game();
  try {
    if (explainedGame_ == &game && actions_.plays()->judgement == explainedPlays_->judgement) return;
  } catch (const RuntimeError&) {
    // A file of theirs is gone: nothing can be said of the plays.
  }
  explainedGame_ = nullptr;
  headline_->clear();
  verdict_->setPlaceholderText({});
  explained_->setText(beforeCheck);
}

}  // namespace tallywick
