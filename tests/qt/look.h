// SPDX-License-Identifier: GPL-3.0-or-later
// Looks at a window as a player sees, hears and reaches it, and reports each fault as a failure of the test.
#pragma once

#include <QPalette>
#include <QWidget>
#include <set>
#include <string>

namespace tallywick::test {

/// Palettes as desktops have them.
QPalette lightPalette();
QPalette darkPalette();
/// White on black, chosen and linked in yellow.
QPalette highContrastPalette();

/// The window fits into the screen with its frame and does not scroll sideways, no text is cut, nothing
/// overlaps, every mnemonic leads to one place, every text is readable on its ground, painted ones too, the
/// outlines of fields, lists, buttons and balls stand out, and what can be reached has a name.
void look(QWidget& window);

/// The same, and each widget that the Tab key reaches does something and shows that it has the keyboard.
void lookAndTab(QWidget& window);

/// The names of the classes of all windows that were looked at, as the compiler writes them.
const std::set<std::string>& seenWindows();

}  // namespace tallywick::test
