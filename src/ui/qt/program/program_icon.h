// SPDX-License-Identifier: GPL-3.0-or-later
// The program's icon: that of the desktop's theme where the program is installed, else its own.
#pragma once

#include <QIcon>

namespace tallywick {

QIcon programIcon();

}  // namespace tallywick
