// SPDX-License-Identifier: GPL-3.0-or-later
// The play slip: the numbers of a selection window in rows, 01 to 09 first, then ten to a row.
#pragma once

#include <QElapsedTimer>
#include <QWidget>
#include <vector>

namespace tallywick {

class BallButton;
class Binding;
class SelectionForm;

/// One stop of the Tab key; the arrow keys and typed digits go from number to number.
class Slip : public QWidget {
 public:
  Slip(SelectionForm& form, Binding& binding);

  /// A digit was typed: two of them in short order go to their number, the first one to the number with one
  /// digit or to its decade.
  void typeDigit(int digit);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void goTo(int number);
  /// The number `key` leads to from `number`; 0 where there is none.
  int neighbour(int number, int key) const;
  int numberOf(const QObject* button) const;
  bool contains(int number) const;

  std::vector<BallButton*> buttons_;
  int typed_ = 0;
  QElapsedTimer sinceTyped_;
};

}  // namespace tallywick
