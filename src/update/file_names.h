// Which names a server may give to files, and which of them are meant.
#pragma once

#include <string_view>

namespace tallywick {

/// Whether `name` names a file inside a folder, on every platform: not empty, no slash, colon or control
/// character, no blank or point at its end, no device such as "NUL" or "COM1.txt".
bool isPlainFileName(std::string_view name);

/// "*" stands for any letters, "?" for one, "*.*" for every name; letter case does not count.
bool matchesWildcard(std::string_view wildcard, std::string_view name);

/// The player's own files: the plays, their copies and the saved play texts.
bool isPlayFileName(std::string_view name);

}  // namespace tallywick
