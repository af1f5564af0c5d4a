// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/maintenance.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/file_commit.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"

#include <algorithm>

namespace tallywick {

namespace {

/// The committed plays as two files' texts.
struct Split {
  std::string justPlayed;
  std::string stillPending;
};

std::string newestDrawDate(const GameInfo& game, const DataFolder& folder) {
  SequentialReader draws(folder, inFolder(game, drawsFile), SequentialReader::Reading::inPieces);
  return drawOf(draws.record<drawFields>()).displayDate();
}

Split splitAt(std::string_view newestDraw, SequentialReader& committed) {
  Split split;
  forEachRecord<playFields>(committed, [&](const Fields<playFields>& record) {
    const Play play = playOf(record);
    // Kept slip: dates are compared as texts, the month before the year.
    appendRecord(play.date <= newestDraw ? split.justPlayed : split.stillPending, play);
  });
  return split;
}

void stage(FileCommit& files, const GameInfo& game, PlaySlot slot, std::string_view contents) {
  files.stage(playFileName(game, slot), contents);
}

void stageWithCopy(FileCommit& files, const GameInfo& game, PlaySlot slot, PlaySlot workFile,
                   std::string_view contents) {
  stage(files, game, slot, contents);
  stage(files, game, workFile, {});
  files.stage(saveFileName(game, slot), contents);
}

void moveDrawnPlays(const GameInfo& game, const DataFolder& folder) {
  FileCommit files(folder.resolve(game.folder));
  const std::string newestDraw = newestDrawDate(game, folder);
  SequentialReader committed(folder, playFilePath(game, PlaySlot::committed));
  if (committed.atEnd()) return;

  Split split = splitAt(newestDraw, committed);
  if (split.justPlayed.empty()) {
    stage(files, game, PlaySlot::justPlayed, {});
    stage(files, game, PlaySlot::stillPending, split.stillPending);
  } else {
    const PlayFile history(folder, playFilePath(game, PlaySlot::played));
    for (const Play& play : history.plays()) appendRecord(split.justPlayed, play);
    stageWithCopy(files, game, PlaySlot::committed, PlaySlot::stillPending, split.stillPending);
    stageWithCopy(files, game, PlaySlot::played, PlaySlot::justPlayed, split.justPlayed);
  }
  files.commit();
}

}  // namespace

bool hasDrawnPlays(const GameInfo& game, const DataFolder& folder) {
  if (!folder.exists(inFolder(game, drawsFile))) return false;
  const std::string newestDraw = newestDrawDate(game, folder);
  const PlayFile committed(folder, playFilePath(game, PlaySlot::committed));
  return std::ranges::any_of(committed.plays(), [&](const Play& play) { return play.date <= newestDraw; });
}

void maintainPlayFiles(const GameInfo& game, const DataFolder& folder, ProgramStarter& programs) {
  // The folder's lock is free again before the sort tool asks for it.
  moveDrawnPlays(game, folder);
  programs.start(
      join(R"(C:\Program Files\TALLYWICK SOFTWARE\TALLYWICK\QZRNUMBERS\QZR6)", game.code, "\\", sortToolFile),
      R"(C:\)");
}

void Command1_Click(const DataFolder& folder, ProgramStarter& programs) {
  maintainPlayFiles(powerBall, folder, programs);
}

void Command51_Click(const DataFolder& folder, ProgramStarter& programs) {
  maintainPlayFiles(megaMillions, folder, programs);
}

}  // namespace tallywick
