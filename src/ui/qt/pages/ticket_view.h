// SPDX-License-Identifier: GPL-3.0-or-later
// Check a Ticket: numbers and a date that the player types in, judged without being kept unless asked.
#pragma once

#include <QString>
#include <QWidget>
#include <string>

class QLabel;
class QLineEdit;
class QPushButton;

namespace tallywick {

class PlayActions;

class TicketView : public QWidget {
 public:
  TicketView(PlayActions& actions, QWidget* parent);

  /// Names the extra ball of the game on show; a verdict on another game's ticket goes.
  void refresh();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  /// Gives the field the date of the newest draw, where the player has not typed another one.
  void proposeDate();
  /// Whether the field has a day; says so beside it where it has none.
  bool checkDate();
  void judge();
  void keep();
  void say(const QString& text);
  void forget();

  PlayActions& actions_;
  QLineEdit* numbers_;
  QLineEdit* extra_;
  QLineEdit* date_;
  /// Beside the date, what is wrong with it.
  QLabel* dateError_;
  /// The newest draw's date, as the field was given it.
  QString proposed_;
  QLabel* extraLabel_;
  QLabel* verdict_;
  QPushButton* keep_;
  /// The ticket that the verdict is about; empty without one.
  std::string record_;
};

}  // namespace tallywick
