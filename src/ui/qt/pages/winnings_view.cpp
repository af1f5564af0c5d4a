// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/winnings_view.h"

#include "app/main_form.h"
#include "core/data_folder.h"
#include "core/draws.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/words.h"
#include "display/judging.h"
#include "plays/check_explained.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/pages/my_plays_view.h"
#include "ui/qt/pages/ticket_view.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/hint_panel.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// What screen readers say after a line that is emphasised.
const QString winningMeaning = u"winning"_s;

constexpr int headlineLines = 2;

/// How many there are up to a torn record.
std::size_t playedPlays(const GameInfo& game, const DataFolder& folder) {
  std::size_t plays = 0;
  try {
    SequentialReader reader = openPlays(folder, playFilePath(game, PlaySlot::played));
    forEachRecord<playFields>(reader, [&plays](const Fields<playFields>&) { ++plays; });
  } catch (const RuntimeError&) {
    // What is wrong with the file is said where its plays are read.
  }
  return plays;
}

const QString beforeCheck =
    u"Choose what to check against, then press Check Tickets. What each play's own draw says is shown here."_s;

/// The newest draw, with which the check against the latest one compares every play.
ComparedDraw newestOf(const GameInfo& game, const DataFolder& folder) {
  SequentialReader draws(folder, inFolder(game, searchDrawsFile), SequentialReader::Reading::inPieces);
  const Draw newest = drawOf(draws.record<drawFields>());
  ComparedDraw compared = {newest.displayDate(), {}, std::string(trimmed(newest.extra))};
  std::ranges::transform(newest.white, compared.white.begin(), [](auto number) { return trimmed(number); });
  return compared;
}

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
  const auto list = [&](const char* name) -> LineList& {
    return *view.findChild<LineList*>(QString::fromLatin1(name));
  };
  showInColumns(list("List17"), drawFieldsShown, gameOf);
  for (const char* name : {"List10", "List11"}) showInColumns(list(name), ticketFieldsShown, gameOf);
  highlightMatches(list("List10"), judge);
  LineList& drawn = list("List14");
  showInColumns(drawn, playFieldsShown, gameOf);
  highlightMatches(drawn, judge);
}

/// The plays that a check found to have won.
void showEmphasisedLines(LineList& lines) {
  lines.lineModel()->setStandOut(
      [&lines](std::size_t, std::string_view line) { return lines.emphasises(line); }, winningMeaning);
}

}  // namespace

WinningsView::WinningsView(MainForm& form, FormWindow& window) : form_(form), actions_(form, window) {
  Binding& binding = window.binding();
  setDocumentMode(true);
  addTab(plays(form, binding), u"Pla&ys"_s);
  addTab(check(form, binding), u"Chec&k"_s);
  binding.bind(form.bar.SSTab3, *this);
  showPlaysInColumns(*this, form, window.desk().judge);
  highlightCommon(*findChild<LineList*>(u"List11"_s), window.desk().judge, compared_);
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
  auto* lists = new Sides(u"plays"_s);
  showEmphasisedLines(*titledList(*lists, u"Plays Already Dr&awn"_s, form.winnings.List14,
                                  u"No play's draw has taken place yet."_s, binding));
  titledList(*lists, u"Plays &to Be Drawn"_s, form.winnings.List17, u"No play waits for its draw."_s,
             binding);
  auto* movePowerBall = new QPushButton(page);
  auto* moveMegaMillions = new QPushButton(page);
  auto* buttons = new Flow;
  buttons->addWidget(movePowerBall);
  buttons->addWidget(moveMegaMillions);
  moved_ = sentences(page);
  buttons->addWidget(moved_, true);
  auto* column = columnIn(page, theme::pageMargin);
  column->addWidget(lists, 1);
  column->addLayout(buttons);
  binding.bind(form.update.Command1, *movePowerBall, withMnemonic('V'));
  binding.bind(form.update.Command51, *moveMegaMillions, withMnemonic('G'));
  sayWhatMoved(form.update.Command1, powerBall, form);
  sayWhatMoved(form.update.Command51, megaMillions, form);
  return page;
}

void WinningsView::sayWhatMoved(Button& button, const GameInfo& game, MainForm& form) {
  button.onClick = [this, &game, &form, move = button.onClick] {
    const DataFolder& folder = actions_.folder();
    const std::size_t before = playedPlays(game, folder);
    move();
    const std::size_t moved = playedPlays(game, folder) - before;
    const QString name = toQString(game.name);
    moved_->setText(
        moved == 0 ? u"No %1 play was moved; My Plays names those that stay behind."_s.arg(name)
                   : u"Moved to the drawn plays: %1 of %2."_s.arg(toQString(inFigures(moved, "play")), name));
    if (&actions_.game() != &game) return;
    fillPlayedPlays(form.winnings, folder, game);
    fillCommittedPlays(form.winnings, folder, game);
  };
}

QWidget* WinningsView::check(MainForm& form, Binding& binding) {
  WinningsPage& winnings = form.winnings;
  auto* page = new QWidget;
  auto* latest = new QRadioButton(page);
  auto* byDate = new QRadioButton(page);
  auto* run = new QPushButton(page);
  auto* choice = new Flow;
  choice->setSpacing(theme::pageMargin);
  choice->addWidget(new QLabel(u"Check against:"_s, page));
  for (QWidget* widget :
       {static_cast<QWidget*>(latest), static_cast<QWidget*>(byDate), static_cast<QWidget*>(run)})
    choice->addWidget(widget);

  headline_ = new HintPanel(headlineLines, page);
  explained_ = sentences(page);
  lists_ = new Sides(u"check"_s);
  connect(lists_, &QSplitter::splitterMoved, this, [this] { areWidthsChosen_ = true; });
  showWinningLines(*titledList(*lists_, u"Winnin&g Tickets"_s, winnings.List11, {}, binding));
  numbers_ = titledList(*lists_, u"Their Num&bers and Double Play"_s, winnings.List10, {}, binding);
  showWinningLines(*numbers_);

  auto* column = columnIn(page, theme::pageMargin);
  column->addLayout(choice);
  column->addWidget(headline_);
  column->addWidget(explained_);
  column->addLayout(verdict(form, page, binding));
  column->addWidget(lists_, 1);
  binding.bind(winnings.Option1, *latest, withMnemonic('E'));
  binding.bind(winnings.Option2, *byDate, withMnemonic('A'));
  binding.bind(winnings.Command47, *run, withMnemonic('T'));
  say({}, {}, {});
  return page;
}

QLayout* WinningsView::verdict(MainForm& form, QWidget* page, Binding& binding) {
  ComboBox& written = form.winnings.Combo10;
  auto* line = new Picker(written.items(), page);
  line->setResultsOnly();
  line->setAccessibleName(u"Verdict"_s);
  verdict_ = line->lineEdit();
  auto* name = new QLabel(u"The check's &verdict line:"_s, page);
  name->setBuddy(line);
  verdictNote_ = sentences(page);
  auto* all = new Flow;
  all->addWidget(name);
  all->addWidget(line);
  all->addWidget(verdictNote_, true);
  binding.bind(written, *line);
  binding.announceChangesOf(written);
  return all;
}

void WinningsView::explainCheck(MainForm& form) {
  form.winnings.Command47.onClick = [this, check = form.winnings.Command47.onClick, &form] {
    check();
    checkedGame_ = &actions_.game();
    showExplanation(form);
    makeRoomForNumbers();
  };
}

void WinningsView::makeRoomForNumbers() {
  if (areWidthsChosen_) return;
  const bool isByDate = form_.winnings.Option2.value();
  lists_->setSizes({isByDate ? 2000 : 3000, isByDate ? 3000 : 2000});
}

void WinningsView::say(const QString& headline, const QString& verdict, const QString& more) {
  const bool isChecked = form_.winnings.Option1.value() || form_.winnings.Option2.value();
  const HintPanel::Kind kind = headline.isEmpty() || !isChecked ? HintPanel::Kind::advice
                               : explainedGame_ != nullptr      ? HintPanel::Kind::ready
                                                                : HintPanel::Kind::warning;
  headline_->show(kind, headline, headline.isEmpty() ? beforeCheck : QString());
  verdictNote_->setText(verdict);
  verdict_->setPlaceholderText(explainedGame_ == nullptr ? QString() : u"empty; the count is above"_s);
  explained_->setText(more);
  explained_->setVisible(!more.isEmpty());
  for (QLabel* label : {verdictNote_, explained_}) {
    QAccessibleEvent alert(label, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
  }
}

void WinningsView::showExplanation(const MainForm& form) {
  explainedGame_ = nullptr;
  compared_.reset();
  try {
    const GameInfo& game = actions_.game();
    if (form.winnings.Option1.value()) compared_ = newestOf(game, actions_.folder());
    explainedPlays_ = actions_.plays();
    const CheckExplained said = checkExplained(form.winnings, game, explainedPlays_->judgement);
    explainedGame_ = &game;
    QStringList more;
    for (const std::string& sentence : said.more) more += toQString(sentence);
    say(toQString(said.headline), toQString(said.verdict), more.join(u'\n'));
  } catch (const RuntimeError& error) {
    say(u"The plays cannot be judged: %1"_s.arg(toQString(error.what())), {}, {});
  }
}

void WinningsView::showWhoseCheck() {
  const bool isOther = explainedGame_ == nullptr && checkedGame_ != nullptr &&
                       checkedGame_ != &actions_.game() && listsTickets();
  if (std::exchange(saysWhose_, isOther) == isOther || explainedGame_ != nullptr) return;
  say(isOther ? u"The lists below are still those of %1."_s.arg(toQString(checkedGame_->name)) : QString(),
      {}, isOther ? beforeCheck : QString());
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
  say({}, {}, {});
}

}  // namespace tallywick
