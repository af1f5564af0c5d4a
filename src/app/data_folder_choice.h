// SPDX-License-Identifier: GPL-3.0-or-later
// Which folder is the data folder.
#pragma once

#include <filesystem>
#include <string>

namespace tallywick {

/// The folder named on the command line, else the environment's TALLYWICK_FOLDER, else the working folder
/// where it contains "QzrNumbers", else the platform's folder for this user's data. The folder may not exist
/// yet. Raises RuntimeError 76 for a relative name where the working folder has been removed.
std::filesystem::path chooseDataFolder(const std::string& named);

/// Whether `folder` contains a record book.
bool isDataFolder(const std::filesystem::path& folder);

}  // namespace tallywick
