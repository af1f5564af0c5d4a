// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_actions.h"

#include "core/file_commit.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/words.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/parts/wording.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <algorithm>
#include <limits>
#include <stdexcept>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

void copy(const LineList& list) {
  QGuiApplication::clipboard()->setText(list.selectedText());
}

void save(LineList& list) {
  const QString file = QFileDialog::getSaveFileName(&list, u"Save the Lines"_s, u"tallywick list.txt"_s,
                                                    u"Text (*.txt);;Comma-separated (*.csv)"_s);
  if (file.isEmpty()) return;
  const bool commas = file.endsWith(u".csv"_s, Qt::CaseInsensitive);
  try {
    replaceFile(toPath(file), commas ? asCommaSeparated(list) : asText(list));
  } catch (const RuntimeError& error) {
    throw std::runtime_error(join(toText(file), " could not be written: ", error.description()));
  }
}

void print(LineList& list) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, &list);
  if (dialog.exec() != QDialog::Accepted) return;
  QTextDocument document;
  document.setHtml(u"<h3>%1</h3>%2"_s.arg(list.accessibleName().toHtmlEscaped(),
                                          asTable(list, std::numeric_limits<std::size_t>::max())));
  document.print(&printer);
}

std::optional<std::vector<std::string>> cellsOfLine(const LineList& list, std::string_view line) {
  return cellsOf(list.columns(), line, list.lineModel()->highlightsOf(line).matched);
}

QString tableCell(const QString& tag, Qt::Alignment alignment, const QString& text) {
  return u"<%1 align=\"%2\">%3</%1>"_s.arg(tag, alignment & Qt::AlignRight ? u"right"_s : u"left"_s,
                                           text.toHtmlEscaped());
}

QString tableTitles(const LineColumns& columns) {
  QString cells;
  for (const LineColumn& column : columns)
    cells += tableCell(u"th"_s, alignmentOf(column.field), toQString(column.title));
  return u"<tr>%1</tr>"_s.arg(cells);
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

template <typename Do>
void addAction(LineList& list, HandlerRunner& runner, const QString& text, const QKeySequence& key, Do act) {
  auto* action = new QAction(text, &list);
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetShortcut);
  QObject::connect(action, &QAction::triggered, &list,
                   [&list, &runner, act] { runner.attempt([&list, act] { act(list); }); });
  list.addAction(action);
}

}  // namespace

void addLineActions(LineList& list, HandlerRunner& runner) {
  addAction(list, runner, u"&Copy"_s, QKeySequence::Copy, copy);
  addAction(list, runner, u"Select &All"_s, QKeySequence::SelectAll,
            [](LineList& lines) { lines.selectAll(); });
  addAction(list, runner, u"&Save…"_s, QKeySequence::Save, save);
  addAction(list, runner, u"&Print…"_s, Qt::CTRL | Qt::SHIFT | Qt::Key_P, print);
  list.setContextMenuPolicy(Qt::ActionsContextMenu);
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
  const std::vector<std::string> titles = cellTitles(list.columns());
  std::string text;
  if (!titles.empty()) text.append(csvLine(titles)).append("\r\n");
  for (std::size_t i = 0; i < model->lines().size(); ++i) {
    const std::string_view line = model->lines()[i];
    if (titles.empty()) {
      text.append(csvLine(line));
    } else if (const auto cells = cellsOfLine(list, line)) {
      text.append(csvLine(*cells));
    } else {
      std::vector<std::string> alone(titles.size());
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
  QString rows = tableTitles(list.columns());
  for (std::size_t i = 0; i < shown; ++i) rows += tableRow(list, model->lines()[i]);
  QString text = u"<table cellspacing=\"0\" cellpadding=\"2\">%1</table>"_s.arg(rows);
  if (shown < all) text += u"<p>The first %1 of %2 lines.</p>"_s.arg(shown).arg(all);
  return text;
}

}  // namespace tallywick
