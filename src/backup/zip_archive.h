// SPDX-License-Identifier: GPL-3.0-or-later
// Files in a zip.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace tallywick {

/// What a record book contains, by path with "/" from its folder. The path of a folder ends in "/".
using BookContents = std::map<std::string, std::string>;

/// Whether a name stays inside the record book on every platform and is none of the program's work files.
bool canBeRestored(std::string_view name);

/// The bytes of a zip file. `file` is what errors name.
std::string zipOf(const std::filesystem::path& file, const BookContents& contents);

/// std::runtime_error that names the file where it is no whole zip, too large, or has a name that leads out
/// of a record book or is one of the program's own.
BookContents readZip(const std::filesystem::path& file);

}  // namespace tallywick
