// SPDX-License-Identifier: GPL-3.0-or-later
// Sizes of windows and splitters from one run to the next.
#pragma once

#include <QSize>

class QWidget;

namespace tallywick {

/// Gives the window its last size, or the usual one, and never one larger than the screen; its splitters get
/// their last places.
void restoreLayout(QWidget& window, QSize usual);
/// For a part of the window that was made later.
void restoreSplitters(const QWidget& window, const QWidget& part);
void saveLayout(const QWidget& window);

}  // namespace tallywick
