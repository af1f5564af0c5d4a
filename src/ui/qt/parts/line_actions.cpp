// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_actions.h"

#include "core/file_commit.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "ui/qt/parts/handler_runner.h"
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
#include <stdexcept>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

void copy(const LineList& list) {
  QGuiApplication::clipboard()->setText(list.selectedText());
}

void save(LineList& list) {
  const QString file = QFileDialog::getSaveFileName(&list, u"Save the Lines"_s, u"lines.txt"_s,
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
  document.setHtml(u"<h3>%1</h3><pre>%2</pre>"_s.arg(list.accessibleName().toHtmlEscaped(),
                                                     toQString(asText(list)).toHtmlEscaped()));
  document.print(&printer);
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
  std::string text;
  if (const LineListModel* lines = list.lineModel()) {
    for (std::size_t i = 0; i < lines->lines().size(); ++i)
      text.append(csvLine(lines->lines()[i])).append("\r\n");
  }
  return text;
}

}  // namespace tallywick
