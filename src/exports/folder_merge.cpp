// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/folder_merge.h"

#include "core/journal.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "exports/made_up.h"

namespace tallywick::exports {

namespace fs = std::filesystem;

namespace {

/// The game's folder, which may be missing. A link would lead to files that are not this data folder's.
fs::path ownFolder(const DataFolder& folder, const GameInfo& game) {
  fs::path local = folder.resolve(game.folder);
  for (const fs::path& part : {local.parent_path(), local}) {
    std::error_code ignored;
    const fs::file_type type = fs::symlink_status(part, ignored).type();
    if (type != fs::file_type::directory && type != fs::file_type::not_found) {
      throw RuntimeError(ErrorNumber::pathFileAccess, join(textOf(part), " is a link or no folder"));
    }
  }
  return local;
}

void stageEmptyPlays(FileCommit& change, const GameInfo& game) {
  std::vector<std::string> names = {savedTextsFileName(game)};
  for (PlaySlot slot : {PlaySlot::committed, PlaySlot::played, PlaySlot::stillPending, PlaySlot::justPlayed,
                        PlaySlot::current}) {
    names.push_back(playFileName(game, slot));
  }
  for (PlaySlot slot : {PlaySlot::committed, PlaySlot::played}) names.push_back(saveFileName(game, slot));
  for (const std::string& name : names) {
    std::error_code ignored;
    const fs::path file = entryInAnyCase(change.folder(), name);
    if (fs::symlink_status(file, ignored).type() == fs::file_type::not_found) change.stage(name, "");
  }
}

}  // namespace

FolderMerge::FolderMerge(const DataFolder& folder, Game game, const Merging& merge)
    : folder_(folder), game_(game), local_(ownFolder(folder, infoOf(game))) {
  if (isAtRest(local_)) {
    plan(merge);
    if (!merge_.report.changesFiles && isAtRest(local_)) return;
  }
  fs::create_directories(local_);
  change_.emplace(local_);
  plan(merge);
}

void FolderMerge::plan(const Merging& merge) {
  origin_ = isMadeUp(folder_, game_) ? DrawOrigin::madeUp : DrawOrigin::real;
  const GameFiles files = readGameFiles(infoOf(game_), local_);
  isNewGame_ = files.draws.empty() && files.searchDraws.empty();
  merge_ = merge(files, origin_);
  merge_.report.changesFiles = !merge_.files.empty() || removesMark();
}

void FolderMerge::commit() {
  if (!change_ || !merge_.report.changesFiles) return;
  if (isNewGame_) stageEmptyPlays(*change_, infoOf(game_));
  for (const NewFile& file : merge_.files) {
    if (file.isRemoval) {
      change_->stageRemoval(file.name);
    } else {
      change_->stage(file.name, file.contents);
    }
  }
  if (removesMark()) stageMarkRemoval(folder_, game_, *change_);
  change_->commit();
}

}  // namespace tallywick::exports
