// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/summary_print.h"

#include "app/main_form.h"
#include "ui/qt/parts/wording.h"

#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QString section(const Label& title, const ListBox& list) {
  QString text = u"<h3>%1</h3><pre>"_s.arg(asLabel()(title.caption()).toHtmlEscaped());
  for (std::size_t i = 0; i < list.items().size(); ++i) {
    text += toQString(list.items()[i]).toHtmlEscaped() + u'\n';
  }
  return text + u"</pre>"_s;
}

QString frequentNumbers(const SummaryPage& page) {
  QString text;
  for (const Button& number : page.frequent)
    text += toQString(number.caption()).toHtmlEscaped() + u"&nbsp;&nbsp; "_s;
  return u"<p>%1</p>"_s.arg(text);
}

}  // namespace

QString summaryPage(const MainForm& form) {
  const SummaryPage& page = form.summary;
  return section(page.Label15, page.List1) + section(page.Label16, page.List2) + frequentNumbers(page) +
         section(page.Label21, page.List5) + section(page.Label17, page.List3) +
         section(page.Label19, page.List4);
}

void printSummary(const MainForm& form, QWidget& window) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(toQString(form.title()));
  QPrintDialog dialog(&printer, &window);
  if (dialog.exec() != QDialog::Accepted) return;
  QTextDocument document;
  document.setHtml(summaryPage(form));
  document.print(&printer);
}

}  // namespace tallywick
