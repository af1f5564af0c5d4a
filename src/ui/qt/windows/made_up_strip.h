// SPDX-License-Identifier: GPL-3.0-or-later
// The strip that says that the draws on show are made up.
#pragma once

#include <QFrame>

namespace tallywick {

class FormWindow;

class MadeUpStrip : public QFrame {
 public:
  explicit MadeUpStrip(FormWindow& window);
  /// Appears with made-up draws and goes with real ones.
  void showGame();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  FormWindow& window_;
};

}  // namespace tallywick
