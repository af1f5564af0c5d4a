// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/text_size.h"

#include <QApplication>
#include <QFontInfo>
#include <QKeyEvent>
#include <QSettings>
#include <QWidget>
#include <algorithm>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr double smallest = 6;
constexpr double largest = 36;

constexpr const char* usualSize = "usualTextSize";

QString keptSize() {
  return u"windows/textSize"_s;
}

double sizeNow() {
  const QFont font = QApplication::font();
  return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

void show(double points) {
  QFont font = QApplication::font();
  font.setPointSizeF(std::clamp(points, smallest, largest));
  QApplication::setFont(font);
  // The toolkit notifies shown windows only, and none of the widgets in them.
  for (QWidget* widget : QApplication::allWidgets()) {
    QEvent changed(QEvent::ApplicationFontChange);
    QCoreApplication::sendEvent(widget, &changed);
  }
}

}  // namespace

TextSize::TextSize() {
  qApp->setProperty(usualSize, sizeNow());
  const double last = QSettings().value(keptSize()).toDouble();
  if (last > 0) show(last);
  qApp->installEventFilter(this);
}

void TextSize::change(int points) {
  show(sizeNow() + points);
  QSettings().setValue(keptSize(), sizeNow());
}

void TextSize::reset() {
  show(qApp->property(usualSize).toDouble());
  QSettings().remove(keptSize());
}

bool TextSize::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
  const auto* key = static_cast<QKeyEvent*>(event);
  // Some keyboards have the plus on the number pad only, or behind the shift key.
  const auto modifiers = key->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
  if (modifiers != Qt::ControlModifier) return QObject::eventFilter(watched, event);
  switch (key->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      change(1);
      return true;
    case Qt::Key_Minus:
    case Qt::Key_Underscore:
      change(-1);
      return true;
    case Qt::Key_0:
      reset();
      return true;
    default:
      return QObject::eventFilter(watched, event);
  }
}

}  // namespace tallywick
