// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows ask of the program: help, settings, and what a press needs.
#pragma once

#include "core/games.h"
#include "settings/settings.h"

#include <filesystem>

class QString;

namespace tallywick {

class Application;
enum class AfterFailedFetch;
class Control;
class DataFolder;
class QtPlatform;

/// Opens the compiled help of the data folder where the desktop has a viewer for it, else the program's own
/// manual at `page`.
void openHelp(const DataFolder& folder, const QString& page);

/// The settings to start with. Where the file cannot be understood a message says why, and nothing is
/// updated from anywhere.
Settings settingsAtStart(const DataFolder& folder, QtPlatform& platform);

/// Lets the user edit the settings; what is accepted is written to the data folder and used at once. A file
/// that cannot be understood is not overwritten: it raises what readSettings() raises.
void editSettings(Application& application, QtPlatform& platform);

/// Lets the user back the record book up. Where one is to be restored, the program is ended and the backup to
/// restore is given back; else the path is empty.
std::filesystem::path showBackups(Application& application, QtPlatform& platform);

/// Shows the draws of both games and lets the user fetch, import and type in more. Afterwards the lists have
/// what was brought. `importOf` is a game whose draws are to be imported at once; null for none.
void editDraws(Application& application, QtPlatform& platform, const GameInfo* importOf = nullptr);

/// Asks how an update goes on whose draws could not be fetched: once more, with files, or not at all.
AfterFailedFetch askAfterFailedFetch(Application& application, QtPlatform& platform, const GameInfo& game,
                                     const std::string& why);

/// Runs what a press of the control leads to. An update fetches what it needs first; a message says what it
/// lacks.
void press(Application& application, QtPlatform& platform, Control& control);

/// Whether the settings have the address that the control opens; true for controls that open none.
bool isSet(const Application& application, const Control& control);

/// Shows the committed plays of the game in the main window anew, where it is on show there.
void showSavedPlays(const Application& application, const GameInfo& game);

}  // namespace tallywick
