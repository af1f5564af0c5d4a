// SPDX-License-Identifier: GPL-3.0-or-later
// Looks at a window as a player sees, hears and reaches it, and reports each fault as a failure of the test.
#pragma once

#include <QWidget>
#include <set>
#include <string>

namespace tallywick::test {

/// The window fits into the screen with its frame, no text is cut, nothing overlaps, every mnemonic leads to
/// one place, every text is readable on its ground, and what can be reached has a name.
void look(QWidget& window);

/// The same, and each widget that the Tab key reaches does something and shows that it has the keyboard.
void lookAndTab(QWidget& window);

/// The names of the classes of all windows that were looked at, as the compiler writes them.
const std::set<std::string>& seenWindows();

}  // namespace tallywick::test
