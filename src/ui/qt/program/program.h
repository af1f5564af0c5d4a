// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program from its command line to its end.
#pragma once

#include <filesystem>
#include <optional>

namespace tallywick {

class Application;
class QtPlatform;

/// Lets the windows reach the program. `next` becomes the folder to go on with where the player begins
/// another record book.
void connectDesk(Application& application, QtPlatform& platform, std::optional<std::filesystem::path>& next);

int runProgram(int argumentCount, char** arguments);

}  // namespace tallywick
