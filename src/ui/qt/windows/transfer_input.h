// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the windows alive during a transfer: they are painted, moved and closed, and only Cancel takes input.
#pragma once

#include <QObject>
#include <functional>

class QWidget;

namespace tallywick {

class FormWindow;

class TransferInput : public QObject {
 public:
  /// Handles what waits for the program's windows. Input for another widget than `allowed` is dropped; null
  /// for none. A request to close a window of the model goes to `onClose` and is not followed.
  void handleEvents(QWidget* allowed, const std::function<void(FormWindow& window)>& onClose);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* allowed_ = nullptr;
  const std::function<void(FormWindow& window)>* onClose_ = nullptr;
};

}  // namespace tallywick
