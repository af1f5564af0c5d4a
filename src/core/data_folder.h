// SPDX-License-Identifier: GPL-3.0-or-later
// The data folder: where every path that a handler writes becomes a real file.
#pragma once

#include "core/file_names.h"

#include <filesystem>
#include <string_view>

namespace tallywick {

/// The fixed install path under which absolute paths are written. It means the data folder.
inline constexpr std::string_view installFolder = R"(C:\Program Files\Tallywick Software\Tallywick)";

class DataFolder {
 public:
  explicit DataFolder(std::filesystem::path root);

  const std::filesystem::path& root() const { return root_; }

  /// The real file or folder below the data folder for a path as the handlers write it: `\` or `/`, either
  /// letter case, relative or under the install path. Where nothing has that name in any case, the part
  /// that is missing keeps the case in which it is written, so a file is never created a second time in
  /// another case. A path that leaves the data folder raises error 76.
  std::filesystem::path resolve(std::string_view written) const;

  /// Whether a plain file exists there.
  bool exists(std::string_view written) const;

 private:
  std::filesystem::path root_;
};

/// Which entries are looked at.
enum class Entry { any, folder };

/// The entry of `folder` whose name is `name` in any letter case; `folder / name` where there is none. Of
/// several it is the first in byte order, whatever case is asked for, so that all who ask share one file.
std::filesystem::path entryInAnyCase(const std::filesystem::path& folder, std::string_view name,
                                     Entry wanted = Entry::any);

/// Another entry beside `entry`, with its name in another letter case; empty where there is none.
std::filesystem::path otherSpelling(const std::filesystem::path& entry);

}  // namespace tallywick
