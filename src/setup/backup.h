// SPDX-License-Identifier: GPL-3.0-or-later
// A whole record book as one zip file, and back.
#pragma once

#include <cstddef>
#include <filesystem>

namespace tallywick {
class Clock;
}

namespace tallywick::setup {

/// The zip beside the folder whose name is the folder's with the date and time.
std::filesystem::path datedBackup(const std::filesystem::path& folder, const Clock& clock);

/// Writes every file of the record book in `folder` to the new file `zip`, but for locks and work files,
/// reads the zip back and compares. Returns how many files it contains. No program changes the plays
/// meanwhile. std::runtime_error that says what is wrong; no zip is left then.
std::size_t backUp(const std::filesystem::path& folder, const std::filesystem::path& zip);

struct Restored {
  std::size_t files;
  /// Where the folder's earlier contents are now; empty where it had none.
  std::filesystem::path earlier;
};

/// Makes `folder` what the backup `zip` contains. All of it is written beside the folder and compared first;
/// then the folder is renamed and the new one takes its name. std::runtime_error that says what is wrong; the
/// folder is as it was then.
Restored restore(const std::filesystem::path& zip, const std::filesystem::path& folder, const Clock& clock);

}  // namespace tallywick::setup
