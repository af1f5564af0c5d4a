// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/transfer_input.h"

#include "ui/qt/binding/form_window.h"

#include <QCoreApplication>
#include <QEvent>

namespace tallywick {

namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace

void TransferInput::handleEvents(QWidget* allowed, const std::function<void(FormWindow& window)>& onClose) {
  allowed_ = allowed;
  onClose_ = &onClose;
  QCoreApplication::instance()->installEventFilter(this);
  QCoreApplication::processEvents();
  QCoreApplication::instance()->removeEventFilter(this);
}

bool TransferInput::eventFilter(QObject* watched, QEvent* event) {
  if (auto* window = dynamic_cast<FormWindow*>(watched); window && event->type() == QEvent::Close) {
    event->ignore();
    (*onClose_)(*window);
    return true;
  }
  // Windows of the system pass input on to their widgets, where it comes by again.
  const bool isDropped =
      (watched->isWidgetType() || event->type() == QEvent::Shortcut) && watched != allowed_;
  return isDropped && isInput(event->type());
}

}  // namespace tallywick
