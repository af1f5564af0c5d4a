// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/folder_merge.h"

#include "exports/made_up.h"

namespace tallywick::exports {

namespace {

std::filesystem::path madeFolder(const DataFolder& folder, Game game) {
  std::filesystem::path made = folder.resolve(infoOf(game).folder);
  std::filesystem::create_directories(made);
  return made;
}

}  // namespace

FolderMerge::FolderMerge(const DataFolder& folder, Game game, const Merging& merge)
    : folder_(folder),
      game_(game),
      change_(madeFolder(folder_, game)),
      standing_(isMadeUp(folder_, game) ? Standing::madeUp : Standing::real),
      merge_(merge(readGameFiles(infoOf(game), folder_.resolve(infoOf(game).folder)), standing_)) {}

void FolderMerge::commit() {
  if (!merge_.files.empty()) {
    for (const NewFile& file : merge_.files) change_.stage(file.name, file.contents);
    change_.commit();
  }
  // Last, so that a cut before it only lets the next merge replace everything once more.
  if (standing_ == Standing::madeUp && merge_.report.draws > 0) removeMadeUpMark(folder_, game_);
}

}  // namespace tallywick::exports
