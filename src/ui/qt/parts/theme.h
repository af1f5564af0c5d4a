// SPDX-License-Identifier: GPL-3.0-or-later
// What all windows share in looks: the rhythm of their spacing, their faces, and colours that stay readable
// on light and dark desktops.
#pragma once

#include "controls/color.h"

#include <QColor>
#include <QFont>
#include <QMargins>
#include <QPalette>

namespace tallywick::theme {

/// The rhythm of all spacing, in device-independent pixels.
inline constexpr int gap = 8;
inline constexpr int halfGap = gap / 2;
inline constexpr int pageMargin = 2 * gap;

/// Room for the frame that a desktop puts around a window, in device-independent pixels.
inline constexpr QMargins windowFrame = {gap, 5 * gap, gap, gap};

/// Readable text on its ground, and a shape that differs from its surroundings.
inline constexpr double textContrast = 4.5;
inline constexpr double shapeContrast = 3.0;
/// Two states of one thing.
inline constexpr double changeContrast = 1.5;

/// What was won, found or matched.
inline const QColor winning(22, 128, 72);

/// On Windows names faces for texts to take where the one that the system names is not installed: the toolkit
/// would take the first of all. Elsewhere the system does so.
void nameOtherFaces();

QFont headingFont(const QFont& base);
/// A face whose digits and blanks have one width, in the size of `base`.
QFont listFont(const QFont& base);

/// Relative contrast of two opaque colours, 1 to 21.
double contrast(const QColor& one, const QColor& other);
/// Black or white, whichever reads better on `ground`: never below 4.5.
QColor readableOn(const QColor& ground);
/// So much of `over` (0 to 1) laid over `under`.
QColor mixed(const QColor& under, const QColor& over, double share);
/// `wanted`, moved towards black or white until it has at least that contrast with `ground`.
QColor standingOutFrom(const QColor& ground, const QColor& wanted, double leastContrast);

/// Gives the application's palette colours that are readable for hints in empty fields and for what is
/// selected, and that are told apart for what cannot be used.
void makeReadable();

/// What outlines have to stand out from: the window or, on dark desktops, the pages of tabs, which are
/// lighter.
QColor outlinedGround(const QPalette& palette);
/// Of fields, lists and buttons. What cannot be used has a weaker one.
QColor outline(const QPalette& palette, bool isEnabled = true);

bool isDark(const QPalette& palette);
/// A control's colour on this desktop; the system's colours come from the palette.
QColor toQColor(Color color, const QPalette& palette);

}  // namespace tallywick::theme
