// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: the bar, the four pages, the menus and the status bar.
#pragma once

#include "core/os.h"
#include "plays/drawn_plays.h"
#include "ui/qt/binding/form_window.h"

#include <string>
#include <tuple>
#include <vector>

class QLabel;
class QTabWidget;
class QToolButton;

namespace tallywick {

class FileTroubleStrip;
class GlanceStrip;
class NoticeStrip;
class DrawsView;
class LaterPage;
class ListInUse;
class MainForm;
class NavigationBarView;
class SearchView;
class WinningsView;

class MainWindow : public FormWindow {
 public:
  MainWindow(MainForm& form, const Desk& desk);

  QString helpPage() const override;
  void keepLayout() override;
  void finish() override;
  /// The program ends with this window, and the selection windows go with it.
  bool mayClose() override;
  TransferPanel* transferPanel() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void addPages();
  /// A page that is made when it is first shown, when there is time, or by finish().
  void addLaterPage(const QString& title, std::function<QWidget*()> make);
  /// Makes one page after the other while nobody waits for anything.
  void makeNextPage();
  /// What the pages show that does not come from one control alone.
  void showPages();
  void addMenusAndStatus();
  void addOptionEntries();
  void showDoublePlayNote();
  /// That new draws have drawn plays, until the player has been where they are.
  QString drawnPlaysNote();
  /// What the strips over the pages say of the draws on show.
  void showNotices();
  /// Looks whether the record book has other draws than before; what was made of them then says so.
  void followDraws();
  void addKeys();
  /// The manual at the page in front, which is F1.
  void addHelpEntry();
  /// Lets the parts of the strip lead to their pages.
  void followGlance();
  /// The window's own entries of the menu File, over Exit.
  void addFileEntries();
  /// Greys what the settings have no address for.
  void greyUnset();
  QWidget* gameShown();
  /// Beside the tabs, or over them where there is too little room for both.
  void placeGameShown();
  /// Empty lists get the titles of the game on show; the others keep those of their lines. Balls get its
  /// look.
  void followGame();
  /// Whether a press takes no selected plays away, or the user wants it.
  bool mayPress(const Control& control);

  MainForm& main_;
  NavigationBarView* bar_;
  NoticeStrip* madeUp_;
  NoticeStrip* age_;
  FileTroubleStrip* trouble_;
  GlanceStrip* glance_;
  QLabel* doublePlayNote_;
  QWidget* gameShown_ = nullptr;
  QToolButton* doublePlay_ = nullptr;
  std::vector<os::FileStamp> drawFiles_;
  DrawnPlays drawnPlays_;
  /// Whether the page with My Plays was in front since drawnPlays_ had a note.
  bool drawnPlaysSeen_ = false;
  /// For which files, game and day the age of the draws was asked.
  std::tuple<std::vector<os::FileStamp>, std::string, std::string> ageAsked_;
  QTabWidget* pages_;
  ListInUse* listInUse_;
  const GameInfo* titled_ = nullptr;
  std::vector<LaterPage*> laterPages_;
  /// Null until they are made.
  DrawsView* draws_ = nullptr;
  SearchView* searches_ = nullptr;
  WinningsView* winnings_ = nullptr;
};

}  // namespace tallywick
