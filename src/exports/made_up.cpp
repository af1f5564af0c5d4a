// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/made_up.h"

#include "core/data_folder.h"
#include "core/file_commit.h"
#include "core/os.h"
#include "core/text.h"
#include "core/work_files.h"

#include <string>

namespace tallywick::exports {

namespace fs = std::filesystem;

namespace {

/// What the first release's README says of such a game, behind its name and a colon.
constexpr std::string_view madeUpClaim = "made-up sample draws and amounts";

std::string claimOf(Game game) {
  return join("\n", infoOf(game).name, ": ", madeUpClaim);
}

/// The README that tallywick-setup wrote; empty where there is none.
std::string notesOf(const DataFolder& folder) {
  if (!folder.exists(notesFile)) return {};
  const os::FileBytes bytes = os::readFile(folder.resolve(notesFile));
  return bytes.view().starts_with(notesHead) ? std::string(bytes.view()) : std::string();
}

/// Replaces the claims of the first release's README by marks.
void turnClaimsIntoMarks(const DataFolder& folder) {
  std::string notes = notesOf(folder);
  bool found = false;
  for (const GameInfo* game : allGames) {
    const std::size_t claim = notes.find(claimOf(game->game));
    if (claim == std::string::npos) continue;
    found = true;
    const fs::path mark = folder.resolve(inFolder(*game, madeUpMark));
    if (!fs::exists(mark) && fs::exists(mark.parent_path())) replaceFile(mark, "");
    const std::size_t text = notes.find(madeUpClaim, claim);
    notes.replace(text, madeUpClaim.size(), join("made up as long as its folder has a ", madeUpMark));
  }
  if (found) replaceFile(folder.resolve(notesFile), notes);
}

}  // namespace

bool isMadeUp(const DataFolder& folder, Game game) {
  return folder.exists(inFolder(infoOf(game), madeUpMark)) ||
         notesOf(folder).find(claimOf(game)) != std::string::npos;
}

void stageMarkRemoval(const DataFolder& folder, Game game, FileCommit& change) {
  if (!isMadeUp(folder, game)) return;
  turnClaimsIntoMarks(folder);
  change.stageRemoval(madeUpMark);
}

}  // namespace tallywick::exports
