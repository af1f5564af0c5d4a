// SPDX-License-Identifier: GPL-3.0-or-later
// The manual in a window of its own.
#pragma once

#include <QMainWindow>

class QTextBrowser;

namespace tallywick {

class HelpWindow : public QMainWindow {
 public:
  /// Opens the window where it is not open, at this page of the manual.
  static void showPage(const QString& page);

 private:
  HelpWindow();
  void goTo(const QString& page);

  QTextBrowser* text_;
};

/// The folder of the installed manual: beside the program's own, or in it. Empty where there is none.
QString manualFolder();

}  // namespace tallywick
