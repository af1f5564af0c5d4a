// SPDX-License-Identifier: GPL-3.0-or-later
// The winnings pages: the player's plays and the check for winning tickets, which the model has; then My
// Plays and a ticket that is typed in, which are the window's own.
#pragma once

#include "plays/play_table.h"
#include "ui/qt/pages/drawn_lists.h"
#include "ui/qt/pages/play_actions.h"

#include <QTabWidget>

class QBoxLayout;
class QLabel;
class QLineEdit;
class QSplitter;

namespace tallywick {

class Binding;
class Button;
class FormWindow;
class HintPanel;
class LineList;
class MainForm;
class MyPlaysView;
class TicketView;

class WinningsView : public QTabWidget {
 public:
  WinningsView(MainForm& form, FormWindow& window);

  /// To be called after every change of the model.
  void showChanges();
  void showMyPlays(PlayFilter filter);

 private:
  QWidget* plays(MainForm& form, Binding& binding);
  /// Says after a press of the maintenance how many plays it moved, and shows the lists anew.
  void sayWhatMoved(Button& button, const GameInfo& game, MainForm& form);
  QWidget* check(MainForm& form, Binding& binding);
  /// What is said of a check over its verdict line, and beside it.
  QLayout* verdict(MainForm& form, QWidget* page, Binding& binding);
  /// Says beside each check what the judging says, and why the two differ.
  void explainCheck(MainForm& form);
  void showExplanation(const MainForm& form);
  /// Takes the explanation away where the game or what the judging says has changed.
  void dropStaleExplanation();
  /// The headline of a check of the other game.
  void showWhoseCheck();
  bool listsTickets() const;
  /// The list that has the numbers gets more room: by date the second one, else the first.
  void makeRoomForNumbers();
  void say(const QString& headline, const QString& verdict, const QString& more);
  /// Mega Millions has no Double Play.
  void titleNumbers();

  const MainForm& form_;
  PlayActions actions_;
  QLabel* moved_ = nullptr;
  HintPanel* headline_ = nullptr;
  QLineEdit* verdict_ = nullptr;
  QLabel* verdictNote_ = nullptr;
  QLabel* explained_ = nullptr;
  LineList* numbers_ = nullptr;
  QSplitter* lists_ = nullptr;
  /// Whether the player has given the two lists their widths.
  bool areWidthsChosen_ = false;
  /// The game whose check the lists show; none before one.
  const GameInfo* checkedGame_ = nullptr;
  /// What explained_ is about; none without a check.
  const GameInfo* explainedGame_ = nullptr;
  std::shared_ptr<const JudgedPlays> explainedPlays_;
  /// Whether it says that the lists are still those of the other game.
  bool saysWhose_ = false;
  /// With which the check has compared every play; none after a check by date.
  std::optional<ComparedDraw> compared_;
  MyPlaysView* myPlays_ = nullptr;
  TicketView* ticket_ = nullptr;
};

}  // namespace tallywick
