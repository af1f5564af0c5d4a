// SPDX-License-Identifier: GPL-3.0-or-later
// A whole record book as one zip file or as a folder, and back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>

namespace tallywick {

class Clock;

enum class BackupForm : std::uint8_t { zip, folder };

/// A name that ends in ".zip" is that of a zip, every other one that of a folder.
BackupForm backupFormOf(const std::filesystem::path& target);

/// The path beside the folder whose name is the folder's with the date and time.
std::filesystem::path datedBackup(const std::filesystem::path& folder, const Clock& clock,
                                  BackupForm form = BackupForm::zip);

/// Writes every file of the record book in `folder` to the new zip or folder `to`, but for locks and work
/// files, reads it back and compares. Returns how many files it contains. No program changes the plays
/// meanwhile. std::runtime_error that says what is wrong; nothing is left then.
std::size_t backUp(const std::filesystem::path& folder, const std::filesystem::path& to);

struct Restored {
  std::size_t files;
  /// Where the folder's earlier contents are now; empty where it had none.
  std::filesystem::path earlier;
};

/// Makes `folder` what the backup `source`, a zip or a folder, contains. All of it is written beside the
/// folder and compared first; then the folder is renamed and the new one takes its name, which
/// finishRestore() finishes where it is cut short. std::runtime_error that says what is wrong; the folder is
/// as it was then.
Restored restore(const std::filesystem::path& source, const std::filesystem::path& folder,
                 const Clock& clock);

}  // namespace tallywick
