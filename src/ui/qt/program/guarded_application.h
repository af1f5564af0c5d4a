// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's application, with the program's style and a guard where it hands events to the program's own
// code.
#pragma once

#include "core/runtime_error.h"

#include <QApplication>
#include <functional>

namespace tallywick {

/// No exception passes through the toolkit's event loop. What a widget lets escape, in painting for example,
/// ends the program: after the event, and once however often it comes.
class GuardedApplication : public QApplication {
 public:
  GuardedApplication(int& argumentCount, char** arguments);

  /// Shows the error and ends the program; without one it is written to standard error.
  std::function<void(const RuntimeError&)> onEscaped;

  bool notify(QObject* receiver, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;

 private:
  void end(const RuntimeError& error);

  bool ending_ = false;
};

}  // namespace tallywick
