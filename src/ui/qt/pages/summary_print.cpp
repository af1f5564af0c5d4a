// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/summary_print.h"

#include "app/main_form.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// As many lines of each list as a page has room for.
constexpr std::size_t printedLines = 15;

QString section(const Label& title, const ListBox& list, const QWidget& window) {
  const auto& shown = *window.findChild<LineList*>(toQString(list.name()));
  return u"<h3>%1</h3>"_s.arg(asLabel()(title.caption()).toHtmlEscaped()) + asTable(shown, printedLines);
}

QString frequentNumbers(const SummaryPage& page) {
  QString numbers;
  for (const Button& number : page.frequent)
    numbers += toQString(number.caption()).toHtmlEscaped() + u"&nbsp; "_s;
  return u"<p>%1</p>"_s.arg(numbers);
}

QString sideBySide(const QString& left, const QString& right) {
  return u"<table width=\"100%\"><tr><td width=\"50%\">%1</td><td width=\"50%\">%2</td></tr></table>"_s.arg(
      left, right);
}

}  // namespace

QString summaryPage(const MainForm& form, const QWidget& window) {
  const SummaryPage& page = form.summary;
  const GameInfo* const game = gameOnShow(form.frames);
  const QString title = game != nullptr ? u"%1 Summary"_s.arg(toQString(game->name)) : u"Summary"_s;
  return u"<h2>%1</h2>"_s.arg(title) +
         sideBySide(section(page.Label15, page.List1, window), section(page.Label16, page.List2, window)) +
         sideBySide(section(page.Label17, page.List3, window), section(page.Label19, page.List4, window)) +
         section(page.Label21, page.List5, window).replace(u"</h3>"_s, u"</h3>"_s + frequentNumbers(page));
}

void printSummary(const MainForm& form, QWidget& window) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(toQString(form.title()));
  QPrintDialog dialog(&printer, &window);
  if (dialog.exec() != QDialog::Accepted) return;
  QTextDocument document;
  document.setHtml(summaryPage(form, window));
  document.print(&printer);
}

}  // namespace tallywick
