// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/outline_style.h"

#include "ui/qt/parts/theme.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

namespace tallywick {

namespace {

constexpr double cornerRadius = 2;
constexpr int selectedBar = 3;
constexpr int focusWidth = 2;

QColor ringColor(const QPalette& palette) {
  return theme::standingOutFrom(theme::outlinedGround(palette), palette.color(QPalette::Highlight),
                                theme::shapeContrast);
}

void drawOutline(QPainter& painter, const QRectF& area, const QPen& pen, double radius) {
  const double half = pen.widthF() / 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(pen);
  painter.drawRoundedRect(area.adjusted(half, half, -half, -half), radius, radius);
  painter.restore();
}

void drawOutline(QPainter& painter, const QRectF& area, const QStyleOption& option, double radius) {
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  drawOutline(painter, area, QPen(theme::outline(option.palette, isEnabled), 1), radius);
}

/// With the mark of the keyboard, and a weaker one for what the Enter key presses.
void drawMarkedOutline(QPainter& painter, const QStyleOption& option, bool hasKeyboard) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  const bool isDefault = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton) &&
                         option.state.testFlag(QStyle::State_Enabled);
  if (!hasKeyboard && !isDefault) return drawOutline(painter, option.rect, option, cornerRadius);
  // The side of a switch that is on has the mark's own colour.
  const QColor ring = theme::standingOutFrom(option.palette.color(QPalette::Button),
                                             ringColor(option.palette), theme::shapeContrast);
  drawOutline(painter, option.rect, QPen(ring, hasKeyboard ? focusWidth : 1), cornerRadius);
}

/// The toolkit's own circle is a pixel right of and below the middle.
QRectF circleIn(const QRect& area) {
  const double side = area.width() + area.width() % 2 - 1;
  return {area.center().x() + 1.5 - side / 2, area.center().y() + 1.5 - side / 2, side, side};
}

/// Up where the smallest is on top.
void drawSortArrow(const QStyle& style, const QStyleOptionHeader& header, QPainter& painter,
                   const QWidget* widget) {
  if (header.sortIndicator == QStyleOptionHeader::None) return;
  const bool isAscending = header.sortIndicator == QStyleOptionHeader::SortDown;
  style.drawPrimitive(isAscending ? QStyle::PE_IndicatorArrowUp : QStyle::PE_IndicatorArrowDown, &header,
                      &painter, widget);
}

}  // namespace

bool OutlineStyle::drawsOutlines() const {
  return baseStyle()->name() == QLatin1String("fusion");
}

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
      header != nullptr && element == PE_IndicatorHeaderArrow) {
    drawSortArrow(*this, *header, *painter, widget);
    return;
  }
  FocusStyle::drawPrimitive(element, option, painter, widget);
  if (!drawsOutlines()) return;
  const bool hasKeyboard =
      option->state.testFlag(State_HasFocus) && option->state.testFlag(State_KeyboardFocusChange);
  switch (element) {
    case PE_Frame:
    case PE_FrameMenu:
    case PE_FrameTabWidget:
    case PE_IndicatorCheckBox:
      return drawOutline(*painter, option->rect, *option, 0);
    case PE_FrameLineEdit:
      return drawMarkedOutline(*painter, *option, option->state.testFlag(State_HasFocus));
    case PE_PanelButtonCommand:
      return drawMarkedOutline(*painter, *option, hasKeyboard);
    case PE_PanelButtonTool:
      if (option->state & (State_Raised | State_On | State_Sunken))
        drawMarkedOutline(*painter, *option, hasKeyboard);
      return;
    case PE_IndicatorRadioButton: {
      // A thinner circle fades away between the pixels.
      const QRectF circle = circleIn(option->rect);
      const QPen pen(theme::outline(option->palette, option->state.testFlag(State_Enabled)), 1.5);
      return drawOutline(*painter, circle, pen, circle.width() / 2);
    }
    default:
      return;
  }
}

void OutlineStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  FocusStyle::drawControl(element, option, painter, widget);
  if (!drawsOutlines()) return;
  if (element == CE_ProgressBarGroove) drawOutline(*painter, option->rect, *option, cornerRadius);
  if (element == CE_TabBarTabShape && option->state.testFlag(State_Selected))
    painter->fillRect(QRect(option->rect.left(), option->rect.top(), option->rect.width(), selectedBar),
                      ringColor(option->palette));
}

void OutlineStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  FocusStyle::drawComplexControl(control, option, painter, widget);
  if (!drawsOutlines()) return;
  if (control == CC_SpinBox) drawMarkedOutline(*painter, *option, option->state.testFlag(State_HasFocus));
  if (control == CC_ScrollBar)
    drawOutline(*painter, subControlRect(control, option, SC_ScrollBarSlider, widget), *option, 0);
}

int OutlineStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const int usual = FocusStyle::pixelMetric(metric, option, widget);
  return metric == PM_DefaultFrameWidth && drawsOutlines() ? std::max(usual, focusWidth) : usual;
}

}  // namespace tallywick
