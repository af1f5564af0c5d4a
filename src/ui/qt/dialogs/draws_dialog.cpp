// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/dialogs/draws_dialog.h"

#include "app/draws_note.h"
#include "app/file_trouble.h"
#include "core/clock.h"
#include "core/data_folder.h"
#include "core/eras.h"
#include "core/text.h"
#include "core/words.h"
#include "exports/folder_merge.h"
#include "exports/import_report.h"
#include "exports/made_up.h"
#include "exports/typed_draws.h"
#include "ui/qt/dialogs/export_address.h"
#include "ui/qt/dialogs/fetch_dialog.h"
#include "ui/qt/dialogs/typed_draw_dialog.h"
#include "ui/qt/parts/flow.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/wording.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHeaderView>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

enum Column { dateColumn, amountColumn, marksColumn, columnCount };

QString linesOf(const exports::MergeReport& report, Game game) {
  std::ostringstream text;
  exports::print(report, game, text);
  return toQString(text.str()).trimmed();
}

QString resultOf(const GameFetch& fetch) {
  const QString name = toQString(infoOf(fetch.game).name);
  if (!fetch.error.empty()) return u"%1: %2"_s.arg(name, toQString(fetchFailure(fetch)));
  if (fetch.isUnchanged) return u"%1: nothing new"_s.arg(name);
  return u"%1: %2 draws fetched\n%3"_s.arg(name, QString::number(fetch.report.draws),
                                           linesOf(fetch.report, fetch.game));
}

QTableWidgetItem* figure(const QString& text) {
  auto* made = new QTableWidgetItem(text);
  made->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return made;
}

}  // namespace

DrawsDialog::DrawsDialog(const DataFolder& folder, const Clock& clock, std::vector<ExportAddress> addresses,
                         const GameInfo& first, QWidget* parent)
    : QDialog(parent),
      folder_(folder),
      clock_(clock),
      addresses_(std::move(addresses)),
      games_(new QComboBox),
      summary_(new QLabel),
      report_(new QLabel),
      amounts_(new QTableWidget(0, columnCount)) {
  setWindowTitle(u"Draws"_s);
  for (QLabel* label : {summary_, report_}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  summary_->setObjectName(u"drawsSummary"_s);
  report_->setObjectName(u"drawsReport"_s);
  report_->setAccessibleName(u"What was done"_s);
  summary_->setAccessibleName(u"The draws of the game"_s);
  auto* content = new QWidget;
  auto* column = columnIn(content, theme::pageMargin);
  column->addLayout(gameRow());
  column->addWidget(summary_);
  column->addLayout(actionRows());
  column->addWidget(report_);
  addAmounts(*column);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  buttons->setContentsMargins(theme::pageMargin, 0, theme::pageMargin, theme::pageMargin);
  auto* all = columnIn(this);
  all->addWidget(scrolled(content), 1);
  all->addWidget(buttons);
  games_->setCurrentIndex(first.game == Game::powerBall ? 0 : 1);
  connect(games_, &QComboBox::currentIndexChanged, this, [this] {
    report_->clear();
    showGame();
  });
  showGame();
  const int width = sentencesWidth(*this, 88 * theme::gap);
  resizeOnScreen(*this, {width, std::max(80 * theme::gap,
                                         column->heightForWidth(width) + buttons->sizeHint().height())});
}

void DrawsDialog::importAtOnce() {
  QTimer::singleShot(0, this, [this] { change([this] { importDraws(); }); });
}

const GameInfo& DrawsDialog::game() const {
  return games_->currentIndex() == 0 ? powerBall : megaMillions;
}

Day DrawsDialog::today() const {
  return parseDay(clock_.date()).value();
}

QBoxLayout* DrawsDialog::gameRow() {
  for (const GameInfo* each : allGames) games_->addItem(toQString(each->name));
  auto* name = new QLabel(u"&Game:"_s);
  name->setBuddy(games_);
  auto* line = row();
  line->addWidget(name);
  line->addWidget(games_);
  line->addStretch();
  return line;
}

QPushButton* DrawsDialog::action(const QString& name, const QString& text, const QString& tip,
                                 const std::function<void()>& act) {
  auto* button = new QPushButton(text);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this, act] { change(act); });
  return button;
}

QBoxLayout* DrawsDialog::actionRows() {
  auto* line = new Flow;
  line->addWidget(action(u"fetchDraws"_s, u"&Fetch"_s,
                         u"Fetches the draws of both games from the public exports, at any time of the day"_s,
                         [this] { fetch(); }));
  line->addWidget(action(u"importDraws"_s, u"Import &Draws…"_s,
                         u"Takes the draws of this game from an export that you saved"_s,
                         [this] { importDraws(); }));
  importAmounts_ = action(u"importAmounts"_s, u"Import &Amounts…"_s, {}, [this] { importAmounts(); });
  line->addWidget(importAmounts_);
  auto* typed = new Flow;
  typeIn_ = action(u"typeIn"_s, u"&Type In a Draw…"_s, {}, [this] { typeIn(); });
  typed->addWidget(typeIn_);
  remove_ = action(u"removeDraw"_s, u"&Remove…"_s,
                   u"Takes back a draw that was typed in and that no export has"_s, [this] { remove(); });
  typed->addWidget(remove_);
  auto* rows = new QVBoxLayout;
  rows->setSpacing(theme::gap);
  rows->addLayout(line);
  address_ = addressField(u"Address of this game's draws"_s);
  address_->setToolTip(howToGetFiles);
  auto* name = new QLabel(u"To get a file, &open in a web browser:"_s);
  name->setBuddy(address_);
  auto* from = new Flow;
  from->addWidget(name);
  from->addWidget(address_, true);
  rows->addLayout(from);
  rows->addLayout(typed);
  return rows;
}

void DrawsDialog::addAmounts(QBoxLayout& column) {
  auto* name = heading(this, u"Amounts of the &newest draws:"_s);
  name->setBuddy(amounts_);
  amounts_->setHorizontalHeaderLabels({u"Date"_s, u"Amount ($ million)"_s, u"Marks"_s});
  for (const int each : {amountColumn, marksColumn})
    amounts_->horizontalHeaderItem(each)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  amounts_->setAccessibleName(u"Amounts of the newest draws"_s);
  amounts_->setObjectName(u"amounts"_s);
  amounts_->verticalHeader()->hide();
  amounts_->setTabKeyNavigation(false);
  new ListFace(amounts_);
  save_ = action(u"saveAmounts"_s, u"&Save the Amounts"_s,
                 u"Keeps the amounts in the table; an empty one means that it is not known"_s,
                 [this] { saveAmounts(); });
  connect(amounts_, &QTableWidget::itemChanged, this, [this] { save_->setEnabled(true); });
  auto* line = row();
  line->addWidget(save_);
  line->addStretch();
  column.addWidget(name);
  column.addWidget(amounts_, 1);
  column.addLayout(line);
}

void DrawsDialog::showGame() {
  bool isMadeUp = false;
  try {
    address_->setText(toQString(exportOf(addresses_, game().game)));
    address_->setCursorPosition(0);
    history_ = exports::reportOf(folder_, game().game);
    std::string text = summaryOf(game(), history_);
    if (const std::string missing = missingDrawFiles(game(), folder_); !history_.newest && !missing.empty())
      text = join(missing, " Fetch brings the draws anew, or restore a backup (Backup…).");
    isMadeUp = exports::isMadeUp(folder_, game().game);
    if (isMadeUp) {
      text +=
          "\nThese draws are made up. Fetch or import real ones to replace them; until then nothing can be "
          "typed in.";
    }
    summary_->setText(toQString(text));
  } catch (const std::exception& error) {
    history_ = {};
    summary_->setText(toQString(error.what()));
  }
  remove_->setEnabled(!history_.typed.empty());
  greyForMadeUp(isMadeUp);
  showAmounts();
}

void DrawsDialog::greyForMadeUp(bool isMadeUp) {
  const QString why = u"These draws are made up: fetch or import real ones first"_s;
  typeIn_->setEnabled(!isMadeUp);
  typeIn_->setToolTip(isMadeUp ? why : u"Adds one draw, checked by the rules of its date"_s);
  importAmounts_->setEnabled(!isMadeUp);
  importAmounts_->setToolTip(isMadeUp ? why
                                      : u"Takes a file with the columns Draw Date, Amount and Mark Count"_s);
}

void DrawsDialog::showAmounts() {
  amounts_->setRowCount(static_cast<int>(history_.newestAmounts.size()));
  int line = 0;
  for (const exports::AmountEntry& entry : history_.newestAmounts) {
    auto* date = new QTableWidgetItem(toQString(weekdayDate(entry.day)));
    date->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    amounts_->setItem(line, dateColumn, date);
    amounts_->setItem(line, amountColumn, figure(toQString(entry.amount)));
    amounts_->setItem(line, marksColumn, figure(QString::number(entry.marks)));
    ++line;
  }
  // An amount in words, such as $1.2 Billion, has room, and so has the title.
  amounts_->resizeColumnsToContents();
  amounts_->setColumnWidth(amountColumn, std::max(amounts_->columnWidth(amountColumn),
                                                  16 * amounts_->fontMetrics().averageCharWidth()));
  save_->setEnabled(false);
}

void DrawsDialog::showReport(const QString& text) {
  report_->setText(text);
}

void DrawsDialog::change(const std::function<void()>& act) {
  report_->clear();
  try {
    act();
  } catch (const TransferCancelled&) {
    showReport(u"Cancelled; nothing was changed."_s);
  } catch (const exports::TypingError& error) {
    // The table has what was typed.
    showReport(u"⚠ "_s + toQString(error.what()));
    return;
  } catch (const std::exception& error) {
    showReport(u"⚠ Nothing was changed: "_s + toQString(error.what()));
    return;
  }
  showGame();
  if (hasChanged_ && onChanged) onChanged();
}

void DrawsDialog::fetch() {
  QStringList results;
  {
    FetchDialog watch(this);
    for (const GameFetch& one : fetchDraws(folder_, clock_, addresses_, {}, &watch)) results << resultOf(one);
  }
  hasChanged_ = true;
  showReport(results.join(u'\n'));
}

QString DrawsDialog::askForFile(const QString& title) {
  return QFileDialog::getOpenFileName(this, title.arg(toQString(game().name)), {},
                                      u"Exports (*.csv *.txt);;All files (*)"_s);
}

void DrawsDialog::importDraws() {
  const QString file = askForFile(u"The Draws of %1"_s);
  if (file.isEmpty()) return;
  const Game which = game().game;
  const exports::ExportedDraws draws = exports::readDrawsFile(which, toPath(file), today());
  exports::FolderMerge merge(folder_, which,
                             [&](const exports::GameFiles& files, exports::DrawOrigin origin) {
                               return exports::mergeExport(which, draws, {}, files, origin);
                             });
  merge.commit();
  hasChanged_ = true;
  showReport(u"%1: %2"_s.arg(file, linesOf(merge.report(), which)));
}

void DrawsDialog::importAmounts() {
  const Game which = game().game;
  if (exports::isMadeUp(folder_, which)) {
    throw std::runtime_error("these draws are made up; real amounts belong to real draws");
  }
  const QString file = askForFile(u"The Amounts of %1"_s);
  if (file.isEmpty()) return;
  const exports::ExportedAmounts amounts = exports::readAmountsFile(which, toPath(file), today());
  exports::FolderMerge merge(folder_, which,
                             [&](const exports::GameFiles& files, exports::DrawOrigin origin) {
                               if (origin == exports::DrawOrigin::madeUp)
                                 throw std::runtime_error("these draws are made up");
                               exports::Merge made = exports::mergeInto(which, {}, amounts.amounts, files);
                               made.report.refusedAmounts = amounts.refused;
                               return made;
                             });
  merge.commit();
  hasChanged_ = true;
  showReport(u"%1: %2"_s.arg(file, linesOf(merge.report(), which)));
}

void DrawsDialog::typeIn() {
  Day proposed = history_.newest ? drawDayAfter(game().game, *history_.newest) : today();
  if (proposed > today() && !history_.missing.empty()) proposed = history_.missing.back();
  TypedDrawDialog dialog(folder_, game(), today(), proposed, this);
  if (dialog.exec() != QDialog::Accepted) return;
  hasChanged_ = true;
  showReport(dialog.report());
}

void DrawsDialog::remove() {
  QStringList dates;
  for (const Day day : history_.typed) dates << toQString(displayDate(day));
  bool isChosen = false;
  const QString date = QInputDialog::getItem(this, u"Remove a Typed Draw"_s,
                                             u"These draws were typed in and no export has them. &Remove:"_s,
                                             dates, 0, false, &isChosen);
  const qsizetype index = dates.indexOf(date);
  if (!isChosen || index < 0) return;
  exports::removeDraw(folder_, game().game, history_.typed.at(static_cast<std::size_t>(index)));
  hasChanged_ = true;
  showReport(u"%1: the draw of %2 was removed."_s.arg(toQString(game().name), date));
}

void DrawsDialog::saveAmounts() {
  std::vector<exports::AmountEntry> changed;
  int line = 0;
  for (const exports::AmountEntry& known : history_.newestAmounts) {
    amounts_->setCurrentCell(line, amountColumn);
    const std::string amount = toText(amounts_->item(line, amountColumn)->text());
    const std::string marks = toText(amounts_->item(line, marksColumn)->text());
    const exports::AmountEntry entry = exports::checkedTypedAmount(known.day, amount, marks);
    if (entry.amount != known.amount || entry.marks != known.marks) changed.push_back(entry);
    ++line;
  }
  exports::setAmounts(folder_, game().game, changed);
  hasChanged_ = true;
  showReport(changed.size() == 1 ? u"1 amount was saved."_s
                                 : u"%1 amounts were saved."_s.arg(changed.size()));
}

}  // namespace tallywick
