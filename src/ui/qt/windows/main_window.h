// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: the bar, the four pages, the menus and the status bar.
#pragma once

#include "ui/qt/parts/line_list.h"
#include "ui/qt/windows/form_window.h"

#include <QPointer>

class QAction;
class QLabel;
class QTabWidget;

namespace tallywick {

class GlanceStrip;
class MadeUpStrip;
class DrawsView;
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
  void addOptionEntries();
  void showDoublePlayNote();
  void addKeys();
  /// Lets the parts of the strip lead to their pages.
  void followGlance();
  /// The window's own entries of the menu File, over Exit.
  void addFileEntries();
  /// An entry that does to the list in use what the list's own action of that text does.
  QAction* listEntry(const QString& text, const QString& actionText);
  /// The list that was in front last, else the first one of the page.
  LineList* listInUse() const;
  /// Greys what the settings have no address for.
  void greyUnset();
  QWidget* gameShown();
  /// Whether a press takes no selected plays away, or the user wants it.
  bool mayPress(const Control& control);

  MainForm& main_;
  NavigationBarView* bar_;
  MadeUpStrip* madeUp_;
  GlanceStrip* glance_;
  QLabel* doublePlayNote_;
  QTabWidget* pages_;
  QPointer<LineList> lastList_;
  DrawsView* draws_ = nullptr;
  SearchView* searches_ = nullptr;
  WinningsView* winnings_ = nullptr;
};

}  // namespace tallywick
