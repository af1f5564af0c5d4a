// SPDX-License-Identifier: GPL-3.0-or-later
// The summary on paper.
#pragma once

class QString;
class QWidget;

namespace tallywick {

class MainForm;

/// The lists of the summary under their headings, as a page of HTML.
QString summaryPage(const MainForm& form);
void printSummary(const MainForm& form, QWidget& window);

}  // namespace tallywick
