// SPDX-License-Identifier: GPL-3.0-or-later
// Waits until a window is painted.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace tallywick::bench {

/// Notes that a window has been painted.
class PaintWatch : public QObject {
 public:
  PaintWatch() { QCoreApplication::instance()->installEventFilter(this); }
  bool isPainted() const { return painted_; }
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* const widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::Paint && widget != nullptr && widget->isWindow()) painted_ = true;
    return QObject::eventFilter(watched, event);
  }

 private:
  bool painted_ = false;
};

/// Runs `show`, which shows a window, and handles events until the window and all in it is painted.
template <typename Show>
void paint(Show show) {
  const PaintWatch watch;
  show();
  while (!watch.isPainted()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  QCoreApplication::processEvents();
}

}  // namespace tallywick::bench
