// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/line_actions.h"

#include "controls/surroundings.h"
#include "core/file_commit.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/wording.h"

#include <QAction>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>
#include <filesystem>

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
    replaceFile(std::filesystem::path(file.toStdU16String()), commas ? asCommaSeparated(list) : asText(list));
  } catch (const std::exception& error) {
    QMessageBox::warning(&list, toQString(programTitle),
                         u"%1 could not be written: %2"_s.arg(file, QString::fromUtf8(error.what())));
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
void addAction(LineList& list, const QString& text, const QKeySequence& key, Do act) {
  auto* action = new QAction(text, &list);
  action->setShortcut(key);
  action->setShortcutContext(Qt::WidgetShortcut);
  QObject::connect(action, &QAction::triggered, &list, act);
  list.addAction(action);
}

}  // namespace

void addLineActions(LineList& list) {
  addAction(list, u"&Copy"_s, QKeySequence::Copy, [&list] { copy(list); });
  addAction(list, u"Select &All"_s, QKeySequence::SelectAll, [&list] { list.selectAll(); });
  addAction(list, u"&Save…"_s, QKeySequence::Save, [&list] { save(list); });
  addAction(list, u"&Print…"_s, Qt::CTRL | Qt::SHIFT | Qt::Key_P, [&list] { print(list); });
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
