// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/focus_style.h"

#include "ui/qt/parts/theme.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QStyleOption>

namespace tallywick {

void FocusStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_FrameFocusRect && option->state.testFlag(State_KeyboardFocusChange))
    drawRing(*painter, option->rect, option->palette);
}

void FocusStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const {
  QProxyStyle::drawControl(element, option, painter, widget);
  const bool isList =
      element == CE_ShapedFrame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr;
  if (!option->state.testFlag(State_HasFocus)) return;
  if (isList) drawRing(*painter, option->rect, option->palette, 2);
  if (element == CE_TabBarTabLabel && option->state.testFlag(State_KeyboardFocusChange))
    drawRing(*painter,
             option->rect.adjusted(theme::halfGap, theme::halfGap, -theme::halfGap, -theme::halfGap),
             option->palette);
}

void FocusStyle::drawRing(QPainter& painter, const QRect& area, const QPalette& palette, int width) {
  const QColor ground = theme::outlinedGround(palette);
  const double half = width / 2.0;
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(
      QPen(theme::standingOutFrom(ground, palette.color(QPalette::Highlight), theme::shapeContrast), width,
           Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
  painter.drawRect(QRectF(area).adjusted(half, half, -half, -half));
  painter.restore();
}

}  // namespace tallywick
