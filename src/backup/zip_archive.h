// SPDX-License-Identifier: GPL-3.0-or-later
// Files in a zip.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace tallywick {

/// What a record book contains, by path with "/" from its folder. The path of a folder ends in "/".
using BookContents = std::map<std::string, std::string>;

/// Writes the new file. std::runtime_error that names it.
void writeZip(const std::filesystem::path& file, const BookContents& contents);

/// std::runtime_error that names the file where it is no whole zip, too large, or has a name that leads out
/// of a record book or is one of the program's own.
BookContents readZip(const std::filesystem::path& file);

}  // namespace tallywick
