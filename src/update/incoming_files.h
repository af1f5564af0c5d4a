// SPDX-License-Identifier: GPL-3.0-or-later
// The files that come from a server, and the one change that they make to a local folder.
#pragma once

#include "core/file_commit.h"
#include "update/server_listing.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallywick {

class Clock;

/// What a server's folder may hold at most.
struct IncomingLimits {
  std::size_t files = 1000;
  std::uint64_t fileSize = std::uint64_t{64} << 20U;
};

/// Raises an error where a file has no plain name, a name that the program keeps for itself or the name of
/// another in another letter case, where one is too large or there are too many, and where there is none: an
/// update that brings nothing is a failure.
void checkIncoming(const std::vector<ListedFile>& files, const IncomingLimits& limits);

/// The folder's lock is held while this stands. What was added and not committed leaves no trace.
class IncomingFiles {
 public:
  /// `files` has been checked. A file that bears the name of a local folder is an error.
  IncomingFiles(std::filesystem::path folder, const std::vector<ListedFile>& files, const Clock& clock);

  /// Takes a file's bytes. A play file that stands and has other bytes stays as a dated copy, for example
  /// "QZR6PWR1 2026-11-21 181500.Ply".
  void add(std::string_view name, std::string_view contents);

  /// Each file takes the place of the old one of its name, whatever the old one's letter case. Of a
  /// play file's dated copies the newest stay.
  void commit();

 private:
  std::filesystem::path folder_;
  FileCommit commit_;
  /// In small letters: what is listed.
  std::set<std::string> takenNames_;
  const Clock& clock_;
  /// The play files that are replaced, and their copies.
  std::vector<std::pair<std::string, std::string>> copies_;
};

}  // namespace tallywick
