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
void tell(const QString& text);

/// The data folder to work on. Where the chosen one contains no record book the user is offered to make one
/// there, or to open another; nothing where neither is done. Without the offer there is only a warning.
std::optional<std::filesystem::path> findDataFolder(const std::string& named, Offer offer);

/// Takes the data folder for this program alone. Nothing, after a message, where another one has it open.
/// A folder that cannot be written needs no lock.
struct FolderHold {
  std::optional<os::FileLock> lock;
};
std::optional<FolderHold> holdDataFolder(const std::filesystem::path& folder);

}  // namespace tallywick
