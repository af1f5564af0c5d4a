// SPDX-License-Identifier: GPL-3.0-or-later
// What F1 and the settings button open.
#pragma once

class QString;

namespace tallywick {

class Application;
class DataFolder;
class QtPlatform;

/// Opens the compiled help of the data folder where the desktop has a viewer for it, else the program's own
/// manual at `page`.
void openHelp(const DataFolder& folder, const QString& page);

/// Lets the user edit the settings; what he accepts is written to the data folder and holds at once.
void editSettings(Application& application, QtPlatform& platform);

}  // namespace tallywick
