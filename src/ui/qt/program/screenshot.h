// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the windows, for the documentation and for a look without a display.
#pragma once

namespace tallywick {

class Application;
class QtPlatform;
struct Options;

/// Opens the window that the options ask for, on a platform that answers alone, and saves its picture. 0, or
/// 1 where it cannot be taken.
int takeScreenshot(Application& application, QtPlatform& platform, const Options& options);

}  // namespace tallywick
