// SPDX-License-Identifier: GPL-3.0-or-later
// A whole record book as one zip file or as a folder, and back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace tallywick {

class Clock;

enum class BackupForm : std::uint8_t { zip, folder };

/// A name that ends in ".zip" is that of a zip, every other one that of a folder.
BackupForm backupFormOf(const std::filesystem::path& target);

/// The path beside the folder whose name is the folder's with the date and time.
std::filesystem::path datedBackup(const std::filesystem::path& folder, const Clock& clock,
                                  BackupForm form = BackupForm::zip);

struct BackedUp {
  std::size_t files;
  /// Paths from the folder that a zip cannot bring back on every platform, as for a name with a colon.
  std::vector<std::string> leftOut;
};

/// Writes every file of the record book in `folder` to the new zip or folder `to`, but for locks and work
/// files, reads it back and compares. A link to a file is stored as that file; one to anything else is an
/// error. Removes what a killed backup of this record book has left in the same place. No program changes the
/// plays meanwhile. std::runtime_error that says what is wrong; nothing is left then.
BackedUp backUp(const std::filesystem::path& folder, const std::filesystem::path& to);

/// How many files were written to `to`, and which were left out.
std::string reportOf(const BackedUp& backup, const std::filesystem::path& to);

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
