// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/my_plays_view.h"

#include "core/runtime_error.h"
#include "core/text.h"
#include "core/words.h"
#include "ui/qt/pages/play_actions.h"
#include "ui/qt/pages/play_table_model.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/parts/wording.h"

#include <QAction>
#include <QComboBox>
#include <QHeaderView>
#include <QInputDialog>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QTableWidget>
#include <algorithm>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr int leastRows = 3;

/// Tables whose cells are read, not edited: the Tab key leaves them.
void makeReadable(QTableView& table) {
  table.setEditTriggers(QAbstractItemView::NoEditTriggers);
  table.setSelectionBehavior(QAbstractItemView::SelectRows);
  table.setTabKeyNavigation(false);
  table.setWordWrap(false);
  table.setCornerButtonEnabled(false);
  table.verticalHeader()->hide();
  table.horizontalHeader()->setHighlightSections(false);
}

QPushButton* button(Flow& row, const QString& text, const QString& tip) {
  auto* made = new QPushButton(text);
  made->setToolTip(tip);
  row.addWidget(made);
  return made;
}

/// The plays with each number in a field of its own.
std::string commaSeparated(const QSortFilterProxyModel& sorted, const PlayTableModel& plays, Game game) {
  std::string text = csvLine(playCellTitles(game)) + "\r\n";
  for (int row = 0; row < sorted.rowCount(); ++row) {
    const int play = sorted.mapToSource(sorted.index(row, 0)).row();
    text.append(csvLine(playCells(plays.playAt(play), game))).append("\r\n");
  }
  return text;
}

QString prizesText(const YearSums& sums) {
  QString text = toQString(moneyText(sums.dollars * 100));
  if (sums.jackpots > 0)
    text += u"; %1, not in the sum"_s.arg(toQString(inFigures(sums.jackpots, "jackpot")));
  if (sums.winsWithoutPrize > 0) text += u" and %1 without a published prize"_s.arg(sums.winsWithoutPrize);
  return text;
}

QString sumText(const YearSums& sums, int column) {
  const auto count = [](std::size_t number) { return QString::number(number); };
  switch (column) {
    case 1:
      return count(sums.plays);
    case 2:
      return count(sums.waiting);
    case 3:
      return count(sums.wins);
    case 4:
      return prizesText(sums);
    case 5:
      return sums.costInCents ? toQString(moneyText(*sums.costInCents)) : u"no price set"_s;
    default:
      return count(sums.doublePlayWins);
  }
}

}  // namespace

MyPlaysView::MyPlaysView(PlayActions& actions, QWidget* parent) : QWidget(parent), actions_(actions) {
  auto* column = columnIn(this, theme::pageMargin);
  addFilter(*column);
  addTable(*column);
  addButtons(*column);
  fitToFont();
}

void MyPlaysView::fitToFont() {
  const QFontMetrics face = fontMetrics();
  for (QTableView* table : {table_, static_cast<QTableView*>(sums_)})
    table->setMinimumHeight((leastRows + 1) * (face.height() + theme::gap));
  table_->verticalHeader()->setDefaultSectionSize(PlaysDelegate::sideOf(face) + theme::halfGap);
}

void MyPlaysView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange || undo_ == nullptr) return;
  fitToFont();
  if (game_ == nullptr) return;
  table_->resizeColumnsToContents();
  showSums();
}

void MyPlaysView::addFilter(QBoxLayout& column) {
  filter_ = new QComboBox(this);
  for (const auto& text : {u"All plays"_s, u"Waiting for their draw"_s, u"Drawn"_s, u"Won"_s})
    filter_->addItem(text);
  connect(filter_, &QComboBox::currentIndexChanged, this, &MyPlaysView::showPlays);
  auto* label = new QLabel(u"Filt&er:"_s, this);
  label->setBuddy(filter_);
  filter_->setAccessibleName(u"Filter"_s);
  notices_ = sentences(this);
  auto* line = new Flow;
  line->addWidget(label);
  line->addWidget(filter_);
  line->addSpacing(theme::gap);
  line->addWidget(notices_, true);
  column.addLayout(line);
}

void MyPlaysView::addTable(QBoxLayout& column) {
  model_ = new PlayTableModel(this);
  sorted_ = new QSortFilterProxyModel(this);
  sorted_->setSourceModel(model_);
  sorted_->setSortRole(PlayTableModel::SortRole);
  table_ = new QTableView(this);
  table_->setAccessibleName(u"My plays"_s);
  table_->setModel(sorted_);
  table_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  table_->setItemDelegate(new PlaysDelegate(table_));
  makeReadable(*table_);
  table_->setSortingEnabled(true);
  table_->sortByColumn(PlayTableModel::DateColumn, Qt::DescendingOrder);
  connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &MyPlaysView::enableActions);
  sums_ = new QTableWidget(this);
  sums_->setAccessibleName(u"Sums by year"_s);
  sums_->setSelectionMode(QAbstractItemView::SingleSelection);
  makeReadable(*sums_);

  auto* plays = new QWidget;
  auto* playsColumn = columnIn(plays);
  auto* title = heading(plays, u"Your Pl&ays"_s);
  title->setBuddy(table_);
  playsColumn->addWidget(title);
  playsColumn->addWidget(table_, 1);
  auto* years = new QWidget;
  auto* yearsColumn = columnIn(years);
  yearsColumn->addWidget(heading(years, u"By Year, Before Any Multiplier"_s));
  yearsColumn->addWidget(sums_, 1);
  auto* parts = splitter(Qt::Vertical, u"myPlays"_s);
  parts->addWidget(plays);
  parts->addWidget(years);
  parts->setStretchFactor(0, 3);
  parts->setStretchFactor(1, 1);
  column.addWidget(parts, 1);
}

void MyPlaysView::addButtons(QBoxLayout& column) {
  auto* line = new Flow;
  remove_ = button(*line, u"Remo&ve"_s, u"Takes the selected plays away; Undo brings them back (Delete)"_s);
  move_ = button(*line, u"Move &to Played"_s,
                 u"Moves drawn plays that are among the next plays to the played ones"_s);
  bringBack_ = button(*line, u"&Bring Back…"_s, u"Adds the plays of a dated copy that are not among yours"_s);
  undo_ = button(*line, u"Undo"_s, u"Undoes the last change, then the one before it (Ctrl+Z)"_s);
  undo_->setShortcut(QKeySequence::Undo);
  done_ = new QLabel(this);
  done_->setTextFormat(Qt::PlainText);
  line->addWidget(done_, true);
  column.addLayout(line);
  connect(remove_, &QPushButton::clicked, this, &MyPlaysView::remove);
  connect(move_, &QPushButton::clicked, this, &MyPlaysView::move);
  connect(bringBack_, &QPushButton::clicked, this, &MyPlaysView::bringBack);
  connect(undo_, &QPushButton::clicked, this, [this] { actions_.undo(); });
  addMenu();
}

void MyPlaysView::addMenu() {
  ViewTexts texts = tableTexts(*table_);
  texts.commaSeparated = [this] { return commaSeparated(*sorted_, *model_, actions_.game().game); };
  addViewActions(*table_, actions_.runner(), texts);
  addViewActions(*sums_, actions_.runner(), tableTexts(*sums_));
  auto* line = new QAction(table_);
  line->setSeparator(true);
  table_->addAction(line);
  for (QPushButton* each : {remove_, move_, bringBack_}) {
    auto* action = new QAction(each->text(), table_);
    if (each == remove_) {
      action->setShortcut(QKeySequence::Delete);
      action->setShortcutContext(Qt::WidgetShortcut);
    }
    table_->addAction(action);
    connect(action, &QAction::triggered, each, &QPushButton::click);
  }
}

void MyPlaysView::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  refresh();
}

void MyPlaysView::refresh() {
  if (!isVisible()) return;
  if (read()) showPlays();
  showSums();
  const QString done = actions_.lastDone();
  done_->setText(done.isEmpty() ? QString() : u"Done: %1."_s.arg(done));
  enableActions();
}

void MyPlaysView::showOnly(PlayFilter filter) {
  filter_->setCurrentIndex(static_cast<int>(filter));
  table_->setFocus();
}

bool MyPlaysView::read() {
  const GameInfo* const shownGame = std::exchange(game_, &actions_.game());
  auto now = std::make_shared<const JudgedPlays>();
  failure_.clear();
  try {
    now = actions_.plays();
    showNotices(noticesOn(now->judgement));
  } catch (const RuntimeError& error) {
    failure_ = join("The plays cannot be judged: ", error.what());
    showNotices({failure_});
  }
  const bool isNew = shownGame != game_ || now->judgement != shown_->judgement;
  shown_ = std::move(now);
  return isNew;
}

void MyPlaysView::showNotices(const std::vector<std::string>& notices) {
  QStringList lines;
  for (const std::string& notice : notices) lines += toQString(notice);
  notices_->setText(lines.join(u'\n'));
}

void MyPlaysView::showPlays() {
  if (game_ == nullptr) return;
  const int row = table_->currentIndex().row();
  model_->show(*game_, playsIn(shown_->judgement, static_cast<PlayFilter>(filter_->currentIndex())));
  table_->resizeColumnsToContents();
  // The arrow keys go on from where they were.
  const QModelIndex current = sorted_->index(std::clamp(row, 0, std::max(0, sorted_->rowCount() - 1)), 0);
  table_->selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

void MyPlaysView::showSums() {
  std::vector<YearSums> rows = sumsByYear(shown_->judgement, actions_.price());
  rows.push_back(totalOf(rows));
  QStringList columns = {u"Year"_s, u"Plays"_s, u"Waiting"_s, u"Won"_s, u"Prizes"_s, u"Cost"_s};
  if (game_->game == Game::powerBall) columns += u"Won with Double Play"_s;
  sums_->setColumnCount(static_cast<int>(columns.size()));
  sums_->setHorizontalHeaderLabels(columns);
  sums_->setRowCount(static_cast<int>(rows.size()));
  for (int line = 0; line < sums_->rowCount(); ++line) {
    const YearSums& sums = rows[static_cast<std::size_t>(line)];
    const bool isTotal = line + 1 == sums_->rowCount();
    for (int column = 0; column < sums_->columnCount(); ++column) {
      QString text = sumText(sums, column);
      if (column == 0) text = sums.year ? QString::number(*sums.year) : isTotal ? u"All"_s : u"no such day"_s;
      auto* item = new QTableWidgetItem(text);
      if (column > 0) item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
      if (isTotal) item->setFont(theme::headingFont(font()));
      sums_->setItem(line, column, item);
    }
  }
  sums_->resizeColumnsToContents();
  sums_->resizeRowsToContents();
}

std::vector<JudgedPlay> MyPlaysView::selected() const {
  std::vector<JudgedPlay> plays;
  for (const QModelIndex& index : table_->selectionModel()->selectedRows()) {
    plays.push_back(model_->playAt(sorted_->mapToSource(index).row()));
  }
  return plays;
}

void MyPlaysView::enableActions() {
  const std::vector<JudgedPlay> plays = selected();
  const auto isLeftBehind = [](const JudgedPlay& play) { return misplacedOf(play) == Misplaced::leftBehind; };
  remove_->setEnabled(!plays.empty() && std::ranges::all_of(plays, isRemovable));
  move_->setEnabled(!plays.empty() && std::ranges::all_of(plays, isLeftBehind));
  bringBack_->setEnabled(failure_.empty());
  undo_->setEnabled(actions_.canUndo(shown_->texts));
}

void MyPlaysView::remove() {
  std::vector<PlayPlace> places;
  for (const JudgedPlay& play : selected()) places.push_back({play.file, play.record});
  actions_.make([&](const PlayChanges& changes) { return changes.remove(shown_->texts, places); });
}

void MyPlaysView::move() {
  std::vector<std::size_t> records;
  for (const JudgedPlay& play : selected()) records.push_back(play.record);
  std::ranges::sort(records);
  actions_.make([&](const PlayChanges& changes) { return changes.moveToPlayed(shown_->texts, records); });
}

void MyPlaysView::bringBack() {
  actions_.make([this](const PlayChanges& changes) -> std::optional<PlayChange> {
    std::vector<PlayCopy> copies = changes.copies();
    std::erase_if(copies, [](const PlayCopy& copy) { return copy.missing == 0; });
    if (copies.empty()) throw std::runtime_error("No dated copy contains a play that is not among yours.");
    QStringList lines;
    for (const PlayCopy& copy : copies) {
      lines += u"%1: %2 of %3 plays are not among yours"_s.arg(toQString(copy.name))
                   .arg(copy.missing)
                   .arg(copy.plays);
    }
    bool isChosen = false;
    const QString line =
        QInputDialog::getItem(this, u"Bring Back"_s, u"Add the plays that are not among yours from &copy:"_s,
                              lines, 0, false, &isChosen);
    if (!isChosen) return std::nullopt;
    return changes.bringBack(shown_->texts, copies.at(static_cast<std::size_t>(lines.indexOf(line))).name);
  });
}

}  // namespace tallywick
