// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/new_folder.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_commit.h"
#include "core/text.h"
#include "exports/record_texts.h"
#include "settings/settings.h"
#include "setup/ball_picture.h"
#include "setup/folder_notes.h"
#include "setup/records.h"
#include "setup/sample.h"

#include <stdexcept>
#include <vector>

namespace tallywick::setup {

namespace fs = std::filesystem;

namespace {

/// The files of one folder, made together. A file that stands already and is not to be replaced stays.
class FolderFiles {
 public:
  FolderFiles(const fs::path& root, std::string_view written) : folder_(DataFolder(root).resolve(written)) {
    fs::create_directories(folder_);
    commit_.emplace(folder_);
  }

  void replace(std::string_view name, std::string_view contents) { commit_->stage(name, contents); }
  bool lacks(std::string_view name) const { return !fs::exists(entryInAnyCase(folder_, name)); }
  void add(std::string_view name, std::string_view contents) {
    if (lacks(name)) replace(name, contents);
  }
  void commit() { commit_->commit(); }

 private:
  fs::path folder_;
  std::optional<FileCommit> commit_;
};

void stageDraws(FolderFiles& files, const FolderContents::Part& part) {
  const GameInfo& game = infoOf(part.game);
  const std::string draws = exports::drawsText(part.book.draws);
  files.replace(drawsFile, draws);
  files.replace(searchDrawsFile, draws);
  if (part.game == Game::powerBall) files.replace(doublePlayFile, exports::doublePlayText(part.book.draws));
  files.replace(game.winningsFile, exports::winningsText(part.book.amounts, part.book.draws));
}

void addPlays(const fs::path& root, const FolderContents::Part& part) {
  const GameInfo& game = infoOf(part.game);
  FolderFiles files(root, game.folder);
  const std::string committed = playsText(part.game, part.book.committed);
  const std::string played = playsText(part.game, part.book.played);
  files.add(playFileName(game, PlaySlot::committed), committed);
  files.add(saveFileName(game, PlaySlot::committed), committed);
  files.add(playFileName(game, PlaySlot::played), played);
  files.add(saveFileName(game, PlaySlot::played), played);
  for (PlaySlot slot : {PlaySlot::stillPending, PlaySlot::justPlayed, PlaySlot::current}) {
    files.add(playFileName(game, slot), "");
  }
  files.add(savedTextsFileName(game), savedTexts(part.book.savedTexts));
  files.commit();
}

void writePictures(const fs::path& root) {
  FolderFiles files(root, pictureFolder);
  for (BallKind kind : {BallKind::white, BallKind::extra}) {
    for (int number = 1; number <= 99; ++number) {
      const std::string name = ballPictureName(kind, number);
      if (files.lacks(name)) files.replace(name, ballPicture(kind, number));
    }
  }
  files.commit();
}

void writeRoot(const fs::path& root, const FolderContents& contents) {
  FolderFiles files(root, "");
  files.add(calendarFile, calendarText(dayOf(2002, 1, 1), dayOf(2050, 12, 31)));
  files.add(loginFile, "\"tallywick\"\r\n");
  files.add(passwordFile, "\"change-me\"\r\n");
  files.add(settingsFile, settingsText({}));
  files.commit();
  writeNotes(root, contents);
}

}  // namespace

Day lastDrawnDay(std::string_view date, std::string_view time) {
  const std::optional<Day> today = parseDay(date);
  if (!today) throw std::invalid_argument(join("\"", date, "\" is no date; expected MM-DD-YYYY"));
  return time > "23:00:00" ? *today : *today - 1;
}

FolderContents sampleContents(Day last, std::uint64_t seed) {
  FolderContents contents{};
  constexpr std::array games = {Game::powerBall, Game::megaMillions};
  for (std::size_t i = 0; i < games.size(); ++i) {
    FolderContents::Part& part = contents.games[i];
    part.game = games[i];
    part.book.draws = sampleDraws(part.game, last, seed);
    part.book.amounts = sampleAmounts(part.game, part.book.draws, seed);
    part.origin = "made-up sample draws and amounts";
  }
  return contents;
}

bool holdsPlays(const fs::path& folder) {
  for (const GameInfo* game : {&powerBall, &megaMillions}) {
    std::error_code ignored;
    const fs::path plays = DataFolder(folder).resolve(game->folder);
    for (const fs::directory_entry& entry : fs::directory_iterator(plays, ignored)) {
      const std::string name = lowered(nameOf(entry.path()));
      if (name.ends_with(".ply") || name.ends_with(".sav") || name.ends_with(".sel")) return true;
    }
  }
  return false;
}

void writeFolder(const fs::path& folder, const FolderContents& contents) {
  fs::create_directories(folder);
  writePictures(folder);
  writeRoot(folder, contents);
  // Plays come last: once they stand, the folder is somebody's.
  for (const FolderContents::Part& part : contents.games) replaceDraws(folder, part);
  for (const FolderContents::Part& part : contents.games) addPlays(folder, part);
}

void replaceDraws(const fs::path& folder, const FolderContents::Part& part) {
  FolderFiles files(folder, infoOf(part.game).folder);
  stageDraws(files, part);
  files.commit();
}

void writeNotes(const fs::path& folder, const FolderContents& contents) {
  replaceFile(entryInAnyCase(folder, "README.txt"), folderNotes(contents));
}

void makeSampleFolder(const fs::path& folder, std::uint64_t seed) {
  const SystemClock clock;
  const Day last = lastDrawnDay(clock.date(), clock.time());
  FolderContents contents = sampleContents(last, seed);
  for (FolderContents::Part& part : contents.games) addSamplePlays(part.game, part.book, last, seed);
  writeFolder(folder, contents);
}

}  // namespace tallywick::setup
