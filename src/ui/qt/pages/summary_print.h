// SPDX-License-Identifier: GPL-3.0-or-later
// The summary on paper.
#pragma once

class QString;
class QTextDocument;
class QWidget;

namespace tallywick {

class MainForm;

/// The newest of what the summary's lists in the window show, under their headings, as HTML for a page or
/// two.
QString summaryPage(const MainForm& form, const QWidget& window);
/// The same as a document, in a size for paper.
void fillSummary(QTextDocument& document, const MainForm& form, const QWidget& window);
void printSummary(const MainForm& form, QWidget& window);

}  // namespace tallywick
