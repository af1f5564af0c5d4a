// SPDX-License-Identifier: GPL-3.0-or-later
// The files that come from a server, and the one change that they make to a local folder.
#pragma once

#include "update/server_listing.h"
#include "update/transfer_limits.h"

#include <filesystem>
#include <string>
#include <vector>

namespace tallywick {

class Clock;
class DataFolder;

/// Raises an error where a file has no plain name, a name that the program reserves or the name of
/// another in another letter case, where one is too large or there are too many, and where there is none: an
/// update that brings nothing is a failure.
void checkIncoming(const std::vector<ListedFile>& files, const IncomingLimits& limits);

struct IncomingFile {
  /// It has been checked.
  std::string name;
  std::string contents;
};

/// Puts the files into the local folder of the data folder `book` as one change, under the folder's lock:
/// each takes the place of the old one of its name, whatever the old one's letter case. A play file that
/// exists and has other bytes stays as a dated copy, of which the newest stay, for example "QZR6PWR1
/// 2026-11-21 181500.Ply". A file with the name of a local folder is an error. A draw history takes the mark
/// of made-up draws from its game.
void takeIn(const std::vector<IncomingFile>& files, const DataFolder& book,
            const std::filesystem::path& folder, const Clock& clock);

}  // namespace tallywick
