// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: the bar, the four pages, the menus and the status bar.
#pragma once

#include "ui/qt/windows/form_window.h"

class QTabWidget;

namespace tallywick {

class MadeUpStrip;
class MainForm;
class NavigationBarView;
class SearchView;
class WinningsView;

class MainWindow : public FormWindow {
 public:
  MainWindow(MainForm& form, const Desk& desk);

  QString helpPage() const override;
  void keepLayout() override;
  /// The program ends with this window, and the selection windows go with it.
  bool mayClose() override;
  TransferPanel* transferPanel() const override;

 private:
  void addPages();
  void addMenusAndStatus();
  void addDrawsEntry();
  void addKeys();
  QWidget* gameShown();
  /// Whether a press takes no selected plays away, or the user wants it.
  bool mayPress(const Control& control);

  MainForm& main_;
  NavigationBarView* bar_;
  MadeUpStrip* madeUp_;
  QTabWidget* pages_;
  SearchView* searches_ = nullptr;
  WinningsView* winnings_ = nullptr;
};

}  // namespace tallywick
