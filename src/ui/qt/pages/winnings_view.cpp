// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/winnings_view.h"

#include "app/main_form.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"

#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// What screen readers say after a line that is emphasised.
const QString winningMeaning = u"winning"_s;

/// What a line of a winning ticket says.
constexpr std::string_view winningWords = "Winning Ticket";

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
      [](std::size_t, std::string_view line) { return line.find(winningWords) != std::string_view::npos; },
      winningMeaning);
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

WinningsView::WinningsView(MainForm& form, Binding& binding) {
  setDocumentMode(true);
  addTab(plays(form, binding), u"Pla&ys"_s);
  addTab(check(form, binding), u"Chec&k"_s);
  binding.bind(form.bar.SSTab3, *this);
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
  auto* verdictLabel = heading(page, u"V&erdict"_s);
  verdictLabel->setBuddy(verdict);
  verdict->setAccessibleName(u"Verdict"_s);
  auto* lists = splitter(Qt::Horizontal, u"check"_s);
  showWinningLines(*titledList(*lists, u"Winnin&g Tickets"_s, winnings.List11, {}, binding));
  showWinningLines(*titledList(*lists, u"&Their Numbers and Double Play"_s, winnings.List10, {}, binding));

  auto* column = columnIn(page, theme::pageMargin);
  column->addLayout(choice);
  column->addWidget(verdictLabel);
  column->addWidget(verdict);
  column->addWidget(lists, 1);
  binding.bind(winnings.Option1, *latest, withMnemonic('L'));
  binding.bind(winnings.Option2, *byDate, withMnemonic('A'));
  binding.bind(winnings.Command47, *run, withMnemonic('I'));
  binding.bind(winnings.Combo10, *verdict);
  binding.announceChangesOf(winnings.Combo10);
  return page;
}

}  // namespace tallywick
