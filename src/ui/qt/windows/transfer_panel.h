// SPDX-License-Identifier: GPL-3.0-or-later
// What a window shows while a transfer is under way: how far it is, and Cancel.
#pragma once

#include "update/transfer_component.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QPushButton;

namespace tallywick {

/// Hidden until a transfer reports its progress.
class TransferPanel : public QWidget {
 public:
  explicit TransferPanel(QWidget* parent = nullptr);

  void showProgress(const TransferProgress& soFar);
  /// Hides the panel and forgets that Cancel was pressed.
  void end();
  bool isCancelled() const { return cancelled_; }
  /// As the button does.
  void cancel();

  /// The only widget that takes input while a transfer is under way.
  QPushButton& button() const { return *button_; }

 private:
  QLabel* text_;
  QPushButton* button_;
  /// Had the keyboard before Cancel came up.
  QPointer<QWidget> focusBefore_;
  bool cancelled_ = false;
};

}  // namespace tallywick
