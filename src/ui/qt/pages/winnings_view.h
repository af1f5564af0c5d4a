// SPDX-License-Identifier: GPL-3.0-or-later
// The winnings pages: the player's plays, and the check for winning tickets.
#pragma once

#include <QTabWidget>

namespace tallywick {

class Binding;
class MainForm;

class WinningsView : public QTabWidget {
 public:
  WinningsView(MainForm& form, Binding& binding);

 private:
  QWidget* plays(MainForm& form, Binding& binding);
  QWidget* check(MainForm& form, Binding& binding);
};

}  // namespace tallywick
