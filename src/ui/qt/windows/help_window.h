// SPDX-License-Identifier: GPL-3.0-or-later
// The manual in a window of its own.
#pragma once

#include <QMainWindow>

namespace tallywick {

class ManualSearch;
class ManualText;

class HelpWindow : public QMainWindow {
 public:
  /// Opens the window where it is not open, at this page of the manual.
  static void showPage(const QString& page);

 protected:
  /// While a dialog waits the manual can be read.
  bool event(QEvent* event) override;

 private:
  HelpWindow();
  void followDialog();
  void addBar();
  void addSearch();
  void goTo(const QString& page);

  ManualText* text_;
  ManualSearch* search_;
};

/// The folder of the installed manual: beside the program's own, or in it. Empty where there is none.
QString manualFolder();

}  // namespace tallywick
