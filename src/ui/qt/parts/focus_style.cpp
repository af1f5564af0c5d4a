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
  if (isList) drawRing(*painter, option->rect, option->palette);
  if (element == CE_TabBarTabLabel && option->state.testFlag(State_KeyboardFocusChange))
    drawRing(*painter,
             option->rect.adjusted(theme::halfGap, theme::halfGap, -theme::halfGap, -theme::halfGap),
             option->palette);
}

void FocusStyle::drawRing(QPainter& painter, const QRect& area, const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Window);
  painter.save();
  painter.setBrush(Qt::NoBrush);
  painter.setPen(theme::standingOutFrom(ground, palette.color(QPalette::Highlight), theme::shapeContrast));
  painter.drawRect(area.adjusted(0, 0, -1, -1));
  painter.restore();
}

}  // namespace tallywick
