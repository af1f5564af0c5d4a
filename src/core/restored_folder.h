// SPDX-License-Identifier: GPL-3.0-or-later
// A restore of a whole data folder: what it has beside the folder meanwhile, and how one that was cut short
// is finished.
//
// The restored folder is written and compared beside the data folder; renamed to restoredEnding it is
// complete. Then the data folder takes a name with the date, and the restored one takes its name.
#pragma once

#include <filesystem>
#include <string_view>

namespace tallywick {

/// Behind the data folder's name: a restored folder that is being written, one that is complete, and with a
/// date the folder that it replaced.
inline constexpr std::string_view restoringEnding = " restoring.tw~";
inline constexpr std::string_view restoredEnding = " restored.tw~";
inline constexpr std::string_view earlierEnding = " before ";
/// A complete restored folder that is being removed.
inline constexpr std::string_view unwantedEnding = " unwanted.tw~";

/// An absolute path without a closing slash, with links followed as far as it exists.
std::filesystem::path realPath(const std::filesystem::path& path);

/// The path beside `folder` whose name is the folder's with `ending`.
std::filesystem::path beside(const std::filesystem::path& folder, std::string_view ending);

/// Where `folder` is missing and a complete restored one is beside it, a restore was cut short: the restored
/// folder takes the name, and takeRecoveryNotices() reports it with the place of what was there before. Where
/// `folder` exists, the restore was cut short before it changed anything, and the restored folder is removed.
void finishRestore(const std::filesystem::path& folder);

}  // namespace tallywick
