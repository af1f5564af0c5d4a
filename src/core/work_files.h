// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own files in a game folder, and the replacing of one file.
#pragma once

#include "core/os.h"

#include <filesystem>
#include <string_view>

namespace tallywick {

/// Names of the program's own in a game folder. A server that lists one of them is refused.
inline constexpr std::string_view journalName = "TALLYWICK.JNL";
inline constexpr std::string_view lockName = "TALLYWICK.LCK";
inline constexpr std::string_view stagedSuffix = ".tw~";

/// What a game's last fetched export was; it stays between changes.
inline constexpr std::string_view exportNoteName = "TALLYWICK.SRC";
/// The draws that were typed in.
inline constexpr std::string_view typedDrawsName = "TALLYWICK.TYP";

/// The names of locks, journals and staged files, which are there in the middle of a change alone.
bool isOwnWorkName(std::string_view name);
/// All names of the program's own.
bool isOwnName(std::string_view name);

/// What has the name `entry` itself: of a link the link. Raises a RuntimeError where that cannot be known.
std::filesystem::file_type entryType(const std::filesystem::path& entry);
/// Whether anything has the name, a link that leads nowhere too.
bool entryExists(const std::filesystem::path& entry);

/// Replaces one file in one step: a work file beside it is written and synced, then takes its name. A failure
/// leaves the file as it was.
void replaceFile(const std::filesystem::path& file, std::string_view contents,
                 os::Access access = os::Access::usual);

}  // namespace tallywick
