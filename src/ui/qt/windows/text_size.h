// SPDX-License-Identifier: GPL-3.0-or-later
// The size of the text in all windows, from one run to the next.
#pragma once

#include <QObject>

namespace tallywick {

/// Changes the application's font: Ctrl with plus, minus and 0 in every window and dialog. The size is kept
/// where the windows' sizes are.
class TextSize : public QObject {
 public:
  /// The application's font is the usual one from here on, and gets the size of the last run.
  TextSize();

  static void change(int points);
  static void reset();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace tallywick
