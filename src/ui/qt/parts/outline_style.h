// SPDX-License-Identifier: GPL-3.0-or-later
// Outlines of fields, lists, buttons and what is pressed, which can be seen on every desktop: the toolkit's
// own style draws them in a shade of the window's colour, and on black ground there is none. The styles of
// other makers draw their own.
#pragma once

#include "ui/qt/parts/focus_style.h"

namespace tallywick {

class OutlineStyle : public FocusStyle {
 public:
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget = nullptr) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget = nullptr) const override;
  /// Room for the mark of the keyboard beside the outline.
  int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr) const override;

 private:
  bool drawsOutlines() const;
};

}  // namespace tallywick
