// SPDX-License-Identifier: GPL-3.0-or-later
// Finding the data folder at the start, and making one where there is none yet.
#pragma once

#include "core/os.h"

#include <QString>
#include <filesystem>
#include <optional>
#include <string>

namespace tallywick {

enum class Offer { no, yes };

/// Shows a warning with the program's title.
void showWarning(const QString& text);

/// The data folder to work on. Where the chosen one contains no record book the user is offered to make one
/// there, with real or made-up draws, or to open another; nothing where none of it is done. Without the offer
/// there is only a warning.
std::optional<std::filesystem::path> findDataFolder(const std::string& named, Offer offer);

/// Opens this folder from now on where nothing names one and the usual folder has made-up draws.
void rememberOwnFolder(const std::filesystem::path& folder);

/// Takes the data folder for this program alone. Nothing, after a message, where another one has it open.
/// A folder that cannot be written needs no lock.
struct FolderHold {
  std::optional<os::FileLock> lock;
};
std::optional<FolderHold> holdDataFolder(const std::filesystem::path& folder);

}  // namespace tallywick
