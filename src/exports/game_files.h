// SPDX-License-Identifier: GPL-3.0-or-later
// The draw and amount files of a game folder as texts.
#pragma once

#include "core/games.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::exports {

/// What the files contain; a missing one is empty.
struct GameFiles {
  std::string draws;
  std::string searchDraws;
  /// PowerBall's alone.
  std::string doublePlay;
  std::string amounts;
  /// The records of the draws that were typed in and that no export has had, as the main history has them. A
  /// draw counts as typed only while the history still has the same record: an update server's files know
  /// nothing of this one.
  std::string typed = {};
  /// Which version of a public export the files were merged with, as the update notes it.
  std::string exportNote = {};
};

struct NewFile {
  std::string_view name;
  std::string contents;
  /// The file goes.
  bool isRemoval = false;
};

/// Reads the files of the game folder `folder`. RuntimeError where one exists and cannot be read.
GameFiles readGameFiles(const GameInfo& game, const std::filesystem::path& folder);

/// The files of `now` that differ from `before`, the main history last. The program's own notes go where they
/// are empty.
std::vector<NewFile> changedFiles(const GameInfo& game, const GameFiles& before, GameFiles now);

/// `files` with the contents of those of `changed` that are among them.
GameFiles withChanges(const GameInfo& game, GameFiles files, const std::vector<NewFile>& changed);

}  // namespace tallywick::exports
