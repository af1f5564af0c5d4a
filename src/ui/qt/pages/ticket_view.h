// SPDX-License-Identifier: GPL-3.0-or-later
// Check a Ticket: numbers and a date that the player types in, judged without being kept unless asked.
#pragma once

#include <QWidget>
#include <string>

class QDateEdit;
class QFormLayout;
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

 private:
  QLineEdit* addNumbers(QFormLayout& form, const QString& tip);
  void judge();
  void keep();
  void say(const QString& text);
  void forget();

  PlayActions& actions_;
  QLineEdit* numbers_;
  QLineEdit* extra_;
  QDateEdit* date_;
  QLabel* extraLabel_;
  QLabel* verdict_;
  QPushButton* keep_;
  /// The ticket that the verdict is about; empty without one.
  std::string record_;
};

}  // namespace tallywick
