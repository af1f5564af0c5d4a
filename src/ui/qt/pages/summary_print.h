// SPDX-License-Identifier: GPL-3.0-or-later
// The summary on paper.
#pragma once

class QString;
class QTextDocument;

namespace tallywick {

class FormWindow;
class MainForm;

/// The newest of what the summary's lists in the window show, under their headings, as HTML for a page or
/// two. Above them it says where the draws are made up.
QString summaryPage(const MainForm& form, const FormWindow& window);
/// The same as a document, in a size for paper.
void fillSummary(QTextDocument& document, const MainForm& form, const FormWindow& window);
void printSummary(const MainForm& form, FormWindow& window);

}  // namespace tallywick
