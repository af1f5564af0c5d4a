// SPDX-License-Identifier: GPL-3.0-or-later
// The selection window of a game: the slip with its actions on the left, the lists of plays on the right.
#pragma once

#include "ui/qt/windows/form_window.h"

class QGridLayout;

namespace tallywick {

class SelectionForm;
class Slip;

class SelectionWindow : public FormWindow {
 public:
  SelectionWindow(SelectionForm& form, const Desk& desk);

  QString helpPage() const override;
  void keepLayout() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QWidget* slipSide();
  QWidget* listSide();
  void addActions(QGridLayout& grid, QWidget* parent);
  void addDrawCount(QGridLayout& grid, QWidget* parent);
  void addStatus();
  /// Asks what a Done would do beyond what the window shows. False where the player wants none of it.
  bool mayCommit();
  /// Asks where the file of the current plays is not what the window shows.
  bool mayCommitTheFile();
  /// Asks where committed plays would go: Replace, Keep Both, Cancel.
  bool mayReplace();
  void askBeforeDone();
  void showChosen();

  SelectionForm& selection_;
  Slip* slip_ = nullptr;
  QLabel* chosen_ = nullptr;
};

}  // namespace tallywick
