// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/number_table_view.h"

#include "app/main_form.h"
#include "core/runtime_error.h"
#include "ui/qt/binding/binding.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"

#include <QAction>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

const LineColumns columns = {{LineField::ball, "Number"},          {LineField::figure, "Last 100"},
                             {LineField::figure, "By chance"},     {LineField::figure, "All draws"},
                             {LineField::figure, "All by chance"}, {LineField::figure, "Since"},
                             {LineField::date, "Last drawn"}};

}  // namespace

NumberList::NumberList(bool areExtra, HandlerRunner& runner, QWidget* parent)
    : QWidget(parent), areExtra_(areExtra), title_(heading(this)), list_(new LineList(lines_, this)) {
  auto* column = columnIn(this);
  column->addWidget(title_);
  column->addWidget(list_, 1);
  title_->setBuddy(list_);
  list_->setAccessibleName(areExtra ? u"Extra Ball"_s : u"White Balls"_s);
  list_->setPlaceholder(u"No draw can be counted."_s);
  list_->showColumns(columns, Game::powerBall);
  list_->header()->setSortIndicator(0, Qt::AscendingOrder);
  list_->setSortable([this](int section) { sortBy(static_cast<NumberColumn>(section)); });
  addLineActions(*list_, runner);
  addSorting(runner);
}

void NumberList::addSorting(HandlerRunner& runner) {
  auto* line = new QAction(list_);
  line->setSeparator(true);
  list_->addAction(line);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    auto* action = new QAction(u"Sort by %1"_s.arg(toQString(columns[i].title)), list_);
    connect(action, &QAction::triggered, this,
            [this, &runner, i] { runner.attempt([this, i] { sortBy(static_cast<NumberColumn>(i)); }); });
    list_->addAction(action);
  }
}

void NumberList::show(const std::vector<NumberCount>& counts, Game game, const QString& name) {
  counts_ = counts;
  list_->showColumns(columns, game);
  list_->setExtraBalls(areExtra_);
  title_->setText(name);
  list_->setAccessibleName(name);
  showSorted();
}

void NumberList::sortBy(NumberColumn column) {
  // What came often is asked for first; the numbers themselves count up.
  descending_ = column == column_ ? !descending_ : column != NumberColumn::number;
  column_ = column;
  showSorted();
}

void NumberList::showSorted() {
  sortNumbers(counts_, column_, descending_);
  lines_.clear();
  for (const NumberCount& count : counts_) lines_.add(numberLine(count));
  list_->header()->setSortIndicator(static_cast<int>(column_),
                                    descending_ ? Qt::DescendingOrder : Qt::AscendingOrder);
  list_->reload();
}

NumberTableView::NumberTableView(const MainForm& form, Binding& binding)
    : form_(form),
      folder_(binding.folder()),
      summary_(sentences(this)),
      white_(new NumberList(false, binding.runner())),
      extra_(new NumberList(true, binding.runner())) {
  auto* column = columnIn(this, theme::pageMargin);
  column->addWidget(summary_);
  auto* lists = splitter(Qt::Vertical, u"numbers"_s);
  lists->addWidget(white_);
  lists->addWidget(extra_);
  column->addWidget(lists, 1);
}

void NumberTableView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  showChanges();
}

void NumberTableView::showChanges() {
  if (!isVisible()) return;
  const bool isDoublePlay = form_.frames.Frame6.visible();
  const GameInfo* const shown = gameOnShow(form_.frames);
  const GameInfo& game = shown != nullptr ? *shown : powerBall;
  // A summary fills these from the draws.
  const std::size_t changes =
      form_.search.twoThree.Combo4.items().revision() + form_.summary.List4.items().revision();
  const std::pair<const void*, std::size_t> now = {isDoublePlay ? nullptr : &game, changes};
  if (std::exchange(counted_, now) != now)
    count(game, isDoublePlay ? DrawHistory::doublePlay : DrawHistory::main);
}

void NumberTableView::count(const GameInfo& game, DrawHistory history) {
  NumberTable table;
  QString failure;
  try {
    table = countNumbers(game, history, folder_);
    failure = toQString(table.torn);
  } catch (const RuntimeError& error) {
    failure = toQString(error.what());
  }
  const QString name =
      toQString(game.name) + (history == DrawHistory::doublePlay ? u" Double Play"_s : QString());
  summary_->setText(
      u"Draws of %1 counted: %2. \"By chance\" is how often a number would have come if all numbers of each "
      u"draw's range "
      u"came alike; no count says what comes next."_s.arg(name)
          .arg(table.draws) +
      (failure.isEmpty() ? QString() : u"\nNot counted: %1"_s.arg(failure)));
  white_->show(table.white, game.game, u"White Balls of %1"_s.arg(name));
  extra_->show(table.extra, game.game, u"Extra Ball of %1"_s.arg(name));
}

}  // namespace tallywick
