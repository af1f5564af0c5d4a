// SPDX-License-Identifier: GPL-3.0-or-later
// The bar over the pages: the two games as a switch, the play selection, the update and the step to the next
// page.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tallywick {

class FormWindow;
class MainForm;
class TransferPanel;

class NavigationBarView : public QWidget {
 public:
  NavigationBarView(MainForm& form, FormWindow& window);
  /// Presses the switch in for the game on show, and shows what is known about its draws after an update.
  void showGame();
  TransferPanel* transferPanel() const { return transfer_; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  /// Presses in the side of the game on show.
  void showSwitch();
  QWidget* updateNote();
  /// The caption of the selection button may still name the game before; a press opens the game on show.
  void sayWhatOpens();

  MainForm& form_;
  FormWindow& window_;
  QPushButton* powerBall_;
  QPushButton* megaMillions_;
  QPushButton* selection_;
  QLabel* opens_;
  TransferPanel* transfer_;
  QLabel* note_;
  QPushButton* again_;
};

}  // namespace tallywick
