// SPDX-License-Identifier: GPL-3.0-or-later
// A merge that is written into a game folder as one change.
#pragma once

#include "core/data_folder.h"
#include "core/file_commit.h"
#include "exports/merge.h"

#include <functional>

namespace tallywick::exports {

/// Takes the lock of a game's folder, lets `merge` say what its files become, and keeps the lock until it
/// goes. Nothing is written before commit(), and nothing at all where nothing changes.
class FolderMerge {
 public:
  using Merging = std::function<Merge(const GameFiles& files, Standing standing)>;

  /// Raises what `merge` raises, and LockedByAnother where another program is at work in the folder.
  FolderMerge(const DataFolder& folder, Game game, const Merging& merge);

  const MergeReport& report() const { return merge_.report; }
  /// What commit() will write.
  const std::vector<NewFile>& files() const { return merge_.files; }

  /// Makes the change. Real draws take the mark of made-up ones away.
  void commit();

 private:
  DataFolder folder_;
  Game game_;
  FileCommit change_;
  Standing standing_;
  Merge merge_;
};

}  // namespace tallywick::exports
