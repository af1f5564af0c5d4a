// SPDX-License-Identifier: GPL-3.0-or-later
// Reads what an FTP server answers when asked for the files of a folder.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// A plain file of a server folder.
struct ListedFile {
  std::string name;
  /// In bytes, where the listing contains it.
  std::optional<std::uint64_t> size;
};

/// The plain files of a listing, in its order; folders, links, devices, "." and ".." are passed over, and so
/// are lines that are no entries at all, such as a total. None where the listing cannot be relied on: its
/// last line has no end, or an entry cannot be understood.
using Listing = std::optional<std::vector<ListedFile>>;

/// The machine-readable form (MLSD): "type=file;size=1234;modify=…; name".
Listing readMachineListing(std::string_view text);

/// The form for people (LIST), as Unix writes it ("-rw-r--r-- 1 owner group 1234 Nov 21 10:35 name") or as
/// Windows does ("11-21-26  10:35AM  1234 name").
Listing readPeopleListing(std::string_view text);

}  // namespace tallywick
