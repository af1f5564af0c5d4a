// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_actions.h"

#include "core/runtime_error.h"
#include "core/text.h"
#include "core/words.h"
#include "core/work_files.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/parts/wording.h"

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QLocale>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QTableView>
#include <QTextDocument>
#include <algorithm>
#include <optional>
#include <stdexcept>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

void save(QAbstractItemView& view, const ViewTexts& texts) {
  const QString file = QFileDialog::getSaveFileName(&view, u"Save the Lines"_s, u"tallywick list.txt"_s,
                                                    u"Text (*.txt);;Comma-separated (*.csv)"_s);
  if (file.isEmpty()) return;
  const bool commas = file.endsWith(u".csv"_s, Qt::CaseInsensitive);
  try {
    replaceFile(toPath(file), commas ? texts.commaSeparated() : texts.text());
  } catch (const RuntimeError& error) {
    throw std::runtime_error(join(toText(file), " could not be written: ", error.description()));
  }
}

/// How many of the view's lines to print; asks where they are many. None where nothing is to be printed.
std::optional<std::size_t> linesToPrint(QAbstractItemView& view) {
  constexpr int many = 1000;
  const int lines = view.model()->rowCount();
  if (lines <= many) return static_cast<std::size_t>(lines);
  const QLocale english(QLocale::English);
  QMessageBox box(
      QMessageBox::Question, u"Print the Lines"_s,
      u"The list has %1 lines, which take long to print and a lot of paper."_s.arg(english.toString(lines)),
      QMessageBox::Cancel, &view);
  QPushButton* const first =
      box.addButton(u"The &First %1"_s.arg(english.toString(many)), QMessageBox::AcceptRole);
  const QPushButton* const all = box.addButton(u"&All Lines"_s, QMessageBox::AcceptRole);
  box.setDefaultButton(first);
  box.exec();
  if (box.clickedButton() == first) return many;
  if (box.clickedButton() == all) return static_cast<std::size_t>(lines);
  return std::nullopt;
}

/// The width of a page that a document fills, in the points of its own layout.
double roomOn(const QPrinter& printer) {
  constexpr double margins = 4 / 2.54;
  return (printer.pageRect(QPrinter::Inch).width() - margins) *
         QGuiApplication::primaryScreen()->logicalDotsPerInchX();
}

/// A table that is wider than the paper would break inside its words: the page is turned, then the letters
/// get smaller.
void fitPaper(QTextDocument& document, QPrinter& printer) {
  constexpr double smallest = 6;
  const double needed = document.idealWidth();
  if (needed > roomOn(printer)) printer.setPageOrientation(QPageLayout::Landscape);
  if (needed <= roomOn(printer)) return;
  QFont font = document.defaultFont();
  font.setPointSizeF(std::max(smallest, 0.95 * font.pointSizeF() * roomOn(printer) / needed));
  document.setDefaultFont(font);
}

void print(QAbstractItemView& view, const ViewTexts& texts) {
  const std::optional<std::size_t> lines = linesToPrint(view);
  if (!lines) return;
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, &view);
  if (dialog.exec() != QDialog::Accepted) return;
  QTextDocument document;
  document.setHtml(u"<h3>%1</h3>%2"_s.arg(view.accessibleName().toHtmlEscaped(), texts.table(*lines)));
  fitPaper(document, printer);
  document.print(&printer);
}

std::optional<std::vector<std::string>> cellsOfLine(const LineList& list, std::string_view line) {
  const LineHighlights found = list.lineModel()->highlightsOf(line);
  return cellsOf(list.columns(), line, found.matched, found.prize);
}

/// Whether any line fits the columns, or there is none that does not.
bool hasColumns(const LineList& list) {
  if (list.columns().empty()) return false;
  const TextLines& lines = list.lineModel()->lines();
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (cellsOf(list.columns(), lines[i])) return true;
  }
  return lines.empty();
}

QString tableCell(const QString& tag, Qt::Alignment alignment, const QString& text) {
  // On paper a date, a play or a title stays in one line.
  const QString unbroken = tag == u"th"_s ? u" style=\"white-space: nowrap\""_s : QString();
  return u"<%1 align=\"%2\"%3>%4</%1>"_s.arg(tag, alignment & Qt::AlignRight ? u"right"_s : u"left"_s,
                                             unbroken, text.toHtmlEscaped().replace(u' ', u"&nbsp;"_s));
}

QString tableTitles(const LineColumns& columns) {
  QString cells;
  for (const LineColumn& column : columns)
    cells += tableCell(u"th"_s, alignmentOf(column.field), toQString(column.title));
  return u"<tr bgcolor=\"#e8e8e8\">%1</tr>"_s.arg(cells);
}

/// A line of a table: the white balls in one cell, the mark of an amount before it.
QString tableRow(const LineList& list, std::string_view line) {
  const LineColumns& columns = list.columns();
  const auto cells = cellsOfLine(list, line);
  if (!cells)
    return u"<tr><td colspan=\"%1\">%2</td></tr>"_s.arg(std::max<std::size_t>(1, columns.size()))
        .arg(toQString(trimmed(line)).toHtmlEscaped());
  QString row;
  auto next = cells->begin();
  for (const LineColumn& column : columns) {
    std::string text;
    for (std::size_t i = 0; i < cellsIn(column.field); ++i, ++next)
      text += column.field == LineField::date ? weekdayDate(*next) : *next + " ";
    row += tableCell(u"td"_s, alignmentOf(column.field), toQString(trimmed(text)));
  }
  return u"<tr>%1</tr>"_s.arg(row);
}

QStringList cellsOf(const QAbstractItemModel& rows, int row) {
  QStringList cells;
  for (int column = 0; column < rows.columnCount(); ++column)
    cells += row < 0 ? rows.headerData(column, Qt::Horizontal).toString()
                     : rows.index(row, column).data().toString();
  return cells;
}

/// The rows in their order, of a selection or all, each with its end.
QString linesOf(const QAbstractItemModel& rows, const QItemSelectionModel* selection) {
  QString text;
  for (int row = 0; row < rows.rowCount(); ++row) {
    if (selection == nullptr || selection->rowIntersectsSelection(row, {}))
      text += cellsOf(rows, row).join(u'\t') + u'\n';
  }
  return text;
}

/// Behind a line of titles.
std::string commaSeparated(const QAbstractItemModel& rows) {
  std::string text;
  for (int row = -1; row < rows.rowCount(); ++row) {
    std::vector<std::string> cells;
    for (const QString& cell : cellsOf(rows, row)) cells.push_back(toText(cell));
    text.append(csvLine(cells)).append("\r\n");
  }
  return text;
}

/// A title stands as the cells under it.
Qt::Alignment alignmentAt(const QAbstractItemModel& rows, int row, int column) {
  return static_cast<Qt::Alignment>(rows.index(std::max(0, row), column).data(Qt::TextAlignmentRole).toInt());
}

QString firstOf(std::size_t shown, std::size_t all) {
  return shown < all ? u"<p>The first %1 of %2 lines.</p>"_s.arg(shown).arg(all) : QString();
}

QString htmlOf(const QAbstractItemModel& rows, std::size_t atMost) {
  const auto all = static_cast<std::size_t>(rows.rowCount());
  const std::size_t shown = std::min(all, atMost);
  QString text;
  for (int row = -1; row < static_cast<int>(shown); ++row) {
    QString line;
    const QStringList cells = cellsOf(rows, row);
    for (int column = 0; column < cells.size(); ++column)
      line += tableCell(row < 0 ? u"th"_s : u"td"_s, alignmentAt(rows, row, column), cells[column]);
    text += u"<tr>%1</tr>"_s.arg(line);
  }
  return u"<table cellspacing=\"0\" cellpadding=\"2\">%1</table>"_s.arg(text) + firstOf(shown, all);
}

}  // namespace

ViewTexts tableTexts(QTableView& table) {
  return {[&table] { return linesOf(*table.model(), table.selectionModel()); },
          [&table] { return toText(linesOf(*table.model(), nullptr)); },
          [&table] { return commaSeparated(*table.model()); },
          [&table](std::size_t atMost) { return htmlOf(*table.model(), atMost); }};
}

void addViewActions(QAbstractItemView& view, HandlerRunner& runner, const ViewTexts& texts) {
  const auto add = [&view, &runner](const QString& text, const QKeySequence& key,
                                    const std::function<void()>& act) {
    auto* action = new QAction(text, &view);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, &view, [&runner, act] { runner.attempt(act); });
    view.addAction(action);
  };
  add(u"&Copy"_s, QKeySequence::Copy, [texts] { QGuiApplication::clipboard()->setText(texts.selected()); });
  add(u"Select &All"_s, QKeySequence::SelectAll, [&view] { view.selectAll(); });
  add(u"&Save…"_s, QKeySequence::Save, [&view, texts] { save(view, texts); });
  add(u"&Print…"_s, Qt::CTRL | Qt::SHIFT | Qt::Key_P, [&view, texts] { print(view, texts); });
  view.setContextMenuPolicy(Qt::ActionsContextMenu);
}

void addLineActions(LineList& list, HandlerRunner& runner) {
  addViewActions(list, runner,
                 {[&list] { return list.selectedText(); }, [&list] { return asText(list); },
                  [&list] { return asCommaSeparated(list); },
                  [&list](std::size_t atMost) { return asTable(list, atMost); }});
}

std::string asText(const LineList& list) {
  std::string text;
  if (const LineListModel* lines = list.lineModel()) {
    for (std::size_t i = 0; i < lines->lines().size(); ++i) text.append(lines->lines()[i]).append("\n");
  }
  return text;
}

std::string asCommaSeparated(const LineList& list) {
  const LineListModel* model = list.lineModel();
  if (model == nullptr) return {};
  const std::vector<std::string> titles =
      hasColumns(list) ? cellTitles(list.columns()) : std::vector<std::string>();
  std::string text;
  if (!titles.empty()) text.append(csvLine(titles)).append("\r\n");
  for (std::size_t i = 0; i < model->lines().size(); ++i) {
    const std::string_view line = model->lines()[i];
    if (list.columns().empty()) {
      text.append(csvLine(line));
    } else if (const auto cells = cellsOfLine(list, line)) {
      text.append(csvLine(*cells));
    } else {
      std::vector<std::string> alone(std::max<std::size_t>(1, titles.size()));
      alone.front() = trimmed(line);
      text.append(csvLine(alone));
    }
    text.append("\r\n");
  }
  return text;
}

QString asTable(const LineList& list, std::size_t atMost) {
  const LineListModel* model = list.lineModel();
  if (model == nullptr) return {};
  const std::size_t all = model->lines().size();
  const std::size_t shown = std::min(all, atMost);
  QString rows = hasColumns(list) ? tableTitles(list.columns()) : QString();
  for (std::size_t i = 0; i < shown; ++i) rows += tableRow(list, model->lines()[i]);
  return u"<table cellspacing=\"0\" cellpadding=\"3\">%1</table>"_s.arg(rows) + firstOf(shown, all);
}

}  // namespace tallywick
