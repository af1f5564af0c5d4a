// SPDX-License-Identifier: GPL-3.0-or-later
// A change of several files of one folder that no kill, cut or full disk leaves half made.
#pragma once

#include "core/os.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// Takes the lock on a folder and finishes what an earlier change of it left behind. Whatever changes play
/// files holds it meanwhile: the selection window, the maintenance, an update and the sort tool.
os::FileLock lockFolder(const std::filesystem::path& folder);

/// A change of several files of one folder that happens as a whole or not at all. The new files are staged
/// beside the old ones, a journal that names them is put in place in one step, and from then on the change is
/// made: commit() takes over name by name and removes the journal, and where that is cut short the next one
/// who takes the folder's lock goes on. The lock is held from construction on.
///
/// The journal records what each file contained. A file that somebody else changed after the cut is kept
/// as a dated copy before it is replaced. A journal that is none of this program's, or that cannot be carried
/// out, is set aside under a dated name, and so are the staged files; takeRecoveryNotices() reports both.
class FileCommit {
 public:
  explicit FileCommit(std::filesystem::path folder);
  /// Drops what was staged and not committed.
  ~FileCommit();
  FileCommit(const FileCommit&) = delete;
  FileCommit& operator=(const FileCommit&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  /// What has been staged.
  const std::vector<std::string>& names() const { return names_; }

  /// Stages new contents for the file `name`, whatever the letter case of its name in the folder. Error 75
  /// where it is no plain name.
  void stage(std::string_view name, std::string_view contents, os::Access access = os::Access::usual);

  /// Makes the removal of the file `name`, whatever the letter case of its name, a part of the change. A
  /// missing file is no error.
  void stageRemoval(std::string_view name);

  /// Takes over the staged files in the order in which they were staged, then removes. Where it fails,
  /// everything is as before or, once a name has been taken over, finished by the next one who takes the
  /// folder's lock.
  void commit();

 private:
  void takeBack() noexcept;

  std::filesystem::path folder_;
  os::FileLock lock_;
  std::vector<std::string> names_;
  std::vector<std::string> removedNames_;
};

}  // namespace tallywick
