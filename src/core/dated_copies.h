// SPDX-License-Identifier: GPL-3.0-or-later
// Copies that keep what a file contained before a change: "QZR6PWR1 2026-11-21 181500.Ply" beside
// "QZR6PWR1.Ply".
#pragma once

#include <cstddef>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class Clock;
class FileCommit;

/// So many copies of a file stay.
inline constexpr std::size_t keptCopies = 20;

struct DatedCopy {
  std::string name;
  /// YYYY-MM-DD HHMMSS.
  std::string date;
  /// From 1; counts the copies of one second.
  std::size_t number;
};

/// The name of the next copy of the file `name` in `folder`. Neither an entry of the folder nor one of
/// `taken`, in small letters, has it.
std::string nextCopyName(const std::filesystem::path& folder, std::string_view name, const Clock& clock,
                         const std::set<std::string>& taken = {});

/// Makes a copy of the file `name` a part of `change`, whatever the letter case of the file's name, and gives
/// back the copy's name. A missing file is error 53.
std::string stageDatedCopy(FileCommit& change, std::string_view name, const Clock& clock,
                           std::set<std::string> taken = {});

/// The copies of the file `name` in `folder`, newest first.
std::vector<DatedCopy> datedCopies(const std::filesystem::path& folder, std::string_view name);

/// Removes all copies of the file `name` but the newest keptCopies. `spared`, the name of a copy just made,
/// stays even where the clock has been set back. The folder's lock is held meanwhile. What cannot be removed
/// stays.
void pruneDatedCopies(const std::filesystem::path& folder, std::string_view name,
                      std::string_view spared = {});

}  // namespace tallywick
