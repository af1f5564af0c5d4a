// SPDX-License-Identifier: GPL-3.0-or-later
// Shows where the keyboard is, in light and dark, also where the desktop's own style leaves it unmarked: on
// lists and tables, the empty ones too.
#pragma once

#include <QProxyStyle>

namespace tallywick {

class FocusStyle : public QProxyStyle {
 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget = nullptr) const override;

  /// A frame within `area` that stands out from the ground.
  static void drawRing(QPainter& painter, const QRect& area, const QPalette& palette, int width = 1);
};

}  // namespace tallywick
