// SPDX-License-Identifier: GPL-3.0-or-later
// Names of files: as text, which are plain, and which of them are meant.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tallywick {

/// A path as UTF-8 text for messages and comparisons, whatever characters it contains; never an error.
std::string textOf(const std::filesystem::path& path);

/// A file's name as text.
std::string nameOf(const std::filesystem::path& file);

/// The path that `text` names. On a platform whose names are no bytes, text that is not UTF-8 counts as
/// Latin-1.
std::filesystem::path pathOf(std::string_view text);

/// Whether `name` names a file inside a folder, on every platform: not empty, no slash, colon or control
/// character, no blank or point at its end, no device such as "NUL" or "COM1.txt".
bool isPlainFileName(std::string_view name);

/// "*" matches any letters, "?" for one, "*.*" for every name; letter case does not count.
bool matchesWildcard(std::string_view wildcard, std::string_view name);

/// The player's own files: the plays, their copies and the saved play texts.
bool isPlayFileName(std::string_view name);

}  // namespace tallywick
