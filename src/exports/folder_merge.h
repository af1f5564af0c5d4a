// SPDX-License-Identifier: GPL-3.0-or-later
// A merge that is written into a game folder as one change.
#pragma once

#include "core/data_folder.h"
#include "core/file_commit.h"
#include "exports/merge.h"

#include <filesystem>
#include <functional>
#include <optional>

namespace tallywick::exports {

/// Lets `merge` say what the files of a game's folder become, under the folder's lock, which it keeps until
/// it goes. Nothing is written before commit(). Where nothing changes it takes no lock, and where somebody
/// might be at work meanwhile it asks `merge` again under the lock.
class FolderMerge {
 public:
  using Merging = std::function<Merge(const GameFiles& files, DrawOrigin origin)>;

  /// Raises what `merge` raises, LockedByAnother where another program is at work in the folder, and error 75
  /// where the game's folder is a link or no folder. A missing folder is made.
  FolderMerge(const DataFolder& folder, Game game, const Merging& merge);

  const MergeReport& report() const { return merge_.report; }

  /// Makes the change. Real draws take the mark of made-up ones away, and a game that had no draws gets the
  /// play files that it lacks, empty.
  void commit();

 private:
  void plan(const Merging& merge);
  bool removesMark() const { return origin_ == DrawOrigin::madeUp && merge_.report.draws > 0; }

  DataFolder folder_;
  Game game_;
  std::filesystem::path local_;
  std::optional<FileCommit> change_;
  DrawOrigin origin_ = DrawOrigin::real;
  bool isNewGame_ = false;
  Merge merge_;
};

}  // namespace tallywick::exports
