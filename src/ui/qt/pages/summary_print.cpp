// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/summary_print.h"

#include "app/main_form.h"
#include "core/clock.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/pages/summary_view.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"

#include <QFont>
#include <QPrintDialog>
#include <QPrinter>
#include <QTextDocument>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// As many lines of each list as a page has room for.
constexpr std::size_t printedLines = 15;
/// Whatever the size of the text on the screen is.
constexpr double printedPoints = 10;

QString sectionTitle(const QString& title) {
  return u"<h3>%1</h3>"_s.arg(title.toHtmlEscaped());
}

QString section(const Label& title, const ListBox& list, const QWidget& window,
                const StarMeaning* meaning = nullptr) {
  const auto& shown = *window.findChild<LineList*>(toQString(list.name()));
  const QString lines = list.items().empty() ? u"<p>None.</p>"_s : asTable(shown, printedLines);
  const QString star =
      meaning != nullptr ? u"<p>* %1</p>"_s.arg(QString::fromLatin1(meaning->full)) : QString();
  return sectionTitle(asLabel()(title.caption())) + star + lines;
}

QString frequentNumbers(const SummaryPage& page, const QWidget& window) {
  QStringList numbers;
  for (const Button& number : page.frequent) numbers += toQString(number.caption());
  const QString title = asLabel()(page.Label21.caption()) + u' ' + asLabel()(page.Label22.caption());
  const auto& shown = *window.findChild<LineList*>(toQString(page.List5.name()));
  return sectionTitle(title) + u"<p>The newest draw: %1</p>"_s.arg(numbers.join(u"  "_s).toHtmlEscaped()) +
         (page.List5.items().empty() ? u"<p>None of its numbers came up in the five draws before it.</p>"_s
                                     : asTable(shown, printedLines));
}

QString sideBySide(const QString& left, const QString& right) {
  return u"<table width=\"100%\"><tr><td width=\"60%\">%1</td><td width=\"40%\">%2</td></tr></table>"_s.arg(
      left, right);
}

}  // namespace

QString summaryPage(const MainForm& form, const FormWindow& window) {
  const SummaryPage& page = form.summary;
  const GameInfo* const game = gameOnShow(form.frames);
  const QString title = game != nullptr ? u"%1 Summary"_s.arg(toQString(game->name)) : u"Summary"_s;
  const Clock* const clock = window.desk().clock;
  const bool isMadeUp = window.desk().showsMadeUpDraws && window.desk().showsMadeUpDraws();
  return u"<h1>%1</h1>"_s.arg(title) +
         (isMadeUp ? u"<p><b>Sample draws.</b> They never took place.</p>"_s : QString()) +
         (clock != nullptr ? u"<p>Printed on %1</p>"_s.arg(toQString(clock->date())) : QString()) +
         section(page.Label15, page.List1, window, &newestStar) + section(page.Label16, page.List2, window) +
         u"<h2 style=\"page-break-before: always\">%1, continued</h2>"_s.arg(title) +
         sideBySide(section(page.Label19, page.List4, window),
                    section(page.Label17, page.List3, window, &amountStar)) +
         frequentNumbers(page, window);
}

void fillSummary(QTextDocument& document, const MainForm& form, const FormWindow& window) {
  QFont font = document.defaultFont();
  font.setPointSizeF(printedPoints);
  document.setDefaultFont(font);
  document.setHtml(summaryPage(form, window));
}

void printSummary(const MainForm& form, FormWindow& window) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(toQString(form.title()));
  QPrintDialog dialog(&printer, &window);
  if (dialog.exec() != QDialog::Accepted) return;
  QTextDocument document;
  fillSummary(document, form, window);
  document.print(&printer);
}

}  // namespace tallywick
