// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/guarded_application.h"

#include "ui/qt/parts/outline_style.h"
#include "ui/qt/parts/theme.h"

#include <QTimer>
#include <iostream>
#include <utility>

namespace tallywick {

GuardedApplication::GuardedApplication(int& argumentCount, char** arguments)
    : QApplication(argumentCount, arguments) {
  theme::nameOtherFaces();
  setStyle(new OutlineStyle);
  theme::makeReadable();
}

bool GuardedApplication::event(QEvent* event) {
  const bool isHandled = QApplication::event(event);
  if (event->type() == QEvent::ApplicationPaletteChange) theme::makeReadable();
  return isHandled;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (...) {
    // In the middle of an event no box can be shown.
    if (!std::exchange(ending_, true))
      QTimer::singleShot(0, this, [this, error = currentRuntimeError()] { end(error); });
    return false;
  }
}

void GuardedApplication::end(const RuntimeError& error) {
  ending_ = false;
  if (onEscaped) {
    onEscaped(error);
    return;
  }
  std::cerr << "tallywick: " << error.what() << '\n';
  exit(1);
}

}  // namespace tallywick
