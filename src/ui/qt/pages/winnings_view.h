// SPDX-License-Identifier: GPL-3.0-or-later
// The winnings pages: the player's plays and the check for winning tickets, which the model has; then My
// Plays and a ticket that is typed in, which are the window's own.
#pragma once

#include "plays/play_table.h"
#include "ui/qt/pages/play_actions.h"

#include <QTabWidget>

class QLabel;
class QLineEdit;

namespace tallywick {

class Binding;
class FormWindow;
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
  QWidget* check(MainForm& form, Binding& binding);
  /// Says beside each check what the judging says, and why the two differ.
  void explainCheck(MainForm& form);
  void showExplanation(const MainForm& form);
  /// Takes the explanation away where the game or what the judging says has changed.
  void dropStaleExplanation();
  /// The headline of a check of the other game.
  void showWhoseCheck();
  bool listsTickets() const;
  /// Mega Millions has no Double Play.
  void titleNumbers();

  const MainForm& form_;
  PlayActions actions_;
  QLabel* headline_ = nullptr;
  QLineEdit* verdict_ = nullptr;
  QLabel* explained_ = nullptr;
  LineList* numbers_ = nullptr;
  /// The game whose check the lists show; none before one.
  const GameInfo* checkedGame_ = nullptr;
  /// What explained_ is about; none without a check.
  const GameInfo* explainedGame_ = nullptr;
  std::shared_ptr<const JudgedPlays> explainedPlays_;
  MyPlaysView* myPlays_ = nullptr;
  TicketView* ticket_ = nullptr;
};

}  // namespace tallywick
