// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/new_folder.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/eras.h"
#include "core/file_commit.h"
#include "core/file_names.h"
#include "core/games.h"
#include "core/text.h"
#include "core/work_files.h"
#include "exports/import_report.h"
#include "exports/made_up.h"
#include "exports/merge.h"
#include "settings/settings.h"
#include "setup/ball_bitmap.h"
#include "setup/book_texts.h"
#include "setup/sample.h"

#include <functional>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace tallywick::setup {

namespace fs = std::filesystem;

namespace {

bool isThere(const fs::path& entry) {
  std::error_code ignored;
  // A link that leads nowhere has its name all the same.
  return fs::symlink_status(entry, ignored).type() != fs::file_type::not_found;
}

/// The files of one folder, made together.
class FolderFiles {
 public:
  FolderFiles(const fs::path& root, std::string_view written) : folder_(DataFolder(root).resolve(written)) {
    fs::create_directories(folder_);
    commit_.emplace(folder_);
  }

  const fs::path& folder() const { return folder_; }
  void replace(std::string_view name, std::string_view contents, os::Access access = os::Access::usual) {
    commit_->stage(name, contents, access);
  }
  bool lacks(std::string_view name) const { return !isThere(entryInAnyCase(folder_, name)); }
  void add(std::string_view name, std::string_view contents, os::Access access = os::Access::usual) {
    if (lacks(name)) replace(name, contents, access);
  }
  void commit() { commit_->commit(); }

 private:
  fs::path folder_;
  std::optional<FileCommit> commit_;
};

void stageDraws(FolderFiles& files, const FolderContents::Part& part) {
  const exports::GameFiles before = exports::readGameFiles(infoOf(part.game), files.folder());
  for (const exports::NewFile& file :
       exports::mergeInto(part.game, part.book.draws, part.book.amounts, before, exports::DrawOrigin::madeUp)
           .files) {
    if (file.isRemoval) continue;
    files.replace(file.name, file.contents);
  }
  if (part.madeUp) files.add(exports::madeUpMark, "");
}

void addPlays(FolderFiles& files, const FolderContents::Part& part) {
  const GameInfo& game = infoOf(part.game);
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

/// The README of a data folder: what is in it and what of it may be made up.
std::string folderNotes() {
  return join(
      exports::notesHead,
      "\r\n\r\n"
      "tallywick.ini       the source of updates and other settings\r\n"
      "PWF2.TXT, PWF.TXT   login and password for an update server\r\n"
      "QZRNUM22.DTE        the calendar of the draw days, 2002 to 2050\r\n"
      "QzrNumbers          a folder a game: draws, amounts, plays; and the pictures of the balls\r\n\r\n"
      "A game whose folder contains a file ",
      exports::madeUpMark,
      " has sample draws and amounts. They were made up by the\r\n"
      "game's rules and never took place: buy, keep and throw away no ticket because of them. Such a game "
      "has\r\nsample plays too.\r\n");
}

void writeRoot(const fs::path& root, const Settings& settings) {
  FolderFiles files(root, "");
  files.add(calendarFile, calendarText(dayOf(2002, 1, 1), dayOf(2050, 12, 31)));
  files.add(loginFile, "\"tallywick\"\r\n", os::Access::ownerOnly);
  files.add(passwordFile, "\"change-me\"\r\n", os::Access::ownerOnly);
  files.add(settingsFile, settingsText(settings));
  files.add(exports::notesFile, folderNotes());
  files.commit();
}

/// std::runtime_error where `folder` exists and is no folder of its own, or exists in two spellings.
void requireFolder(const fs::path& folder) {
  if (!isThere(folder)) return;
  if (const fs::path other = otherSpelling(folder); !other.empty()) {
    throw std::runtime_error(
        join(textOf(folder), " and ", textOf(other), " are in each other's way. Nothing was changed"));
  }
  if (fs::is_symlink(folder)) {
    throw std::runtime_error(textOf(folder) + " is in the way: it is a link. Nothing was changed");
  }
  if (!fs::is_directory(folder)) {
    throw std::runtime_error(textOf(folder) + " is in the way: it is not a folder. Nothing was changed");
  }
}

/// The same for a folder in the data folder, written as "QzrNumbers\Name\".
void requireRoomFor(const fs::path& root, std::string_view written) {
  const std::string_view outer = written.substr(0, written.find('\\'));
  const std::string_view inner = written.substr(outer.size() + 1);
  const fs::path numbers = entryInAnyCase(root, outer);
  requireFolder(numbers);
  requireFolder(entryInAnyCase(numbers, inner.substr(0, inner.size() - 1)));
}

/// Calls `write` with a work folder in `root`, whose QzrNumbers then becomes that of `root` in one step.
void writeAside(const fs::path& root, const std::function<void(const fs::path& work)>& write) {
  const os::FileLock lock(root / lockName, os::FileLock::Wait::no);
  const fs::path work = root / pathOf(join(numbersFolder, stagedSuffix));
  fs::remove_all(work);
  fs::create_directory(work);
  try {
    write(work);
    os::syncFolder(work / numbersFolder);
    fs::rename(work / numbersFolder, root / numbersFolder);
  } catch (...) {
    std::error_code ignored;
    fs::remove_all(work, ignored);
    throw;
  }
  os::syncFolder(root);
  fs::remove_all(work);
}

/// Removes a folder that contains nothing but folders. False, with nothing changed, where there is anything
/// else.
bool removeIfEmpty(const fs::path& folder) {
  std::vector<fs::path> folders = {folder};
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_symlink() || !entry.is_directory()) return false;
    folders.push_back(entry.path());
  }
  for (; !folders.empty(); folders.pop_back()) fs::remove(folders.back());
  return true;
}

void requireNoRecords(const fs::path& folder) {
  if (!containsRecords(folder)) return;
  throw std::runtime_error(textOf(folder) + " already contains draws or plays; nothing was changed");
}

/// Makes a data folder whose games are written by `writeGames`.
void makeBook(const fs::path& folder, const Settings& settings,
              const std::function<void(const fs::path& root)>& writeGames) {
  requireGameFolders(folder);
  requireRoomFor(folder, pictureFolder);
  requireNoRecords(folder);
  fs::create_directories(folder);
  writeRoot(folder, settings);
  const auto write = [&](const fs::path& root) {
    writePictures(root);
    writeGames(root);
  };
  const fs::path numbers = entryInAnyCase(folder, numbersFolder);
  if (isThere(numbers) && !removeIfEmpty(numbers)) {
    write(folder);
  } else {
    writeAside(folder, write);
  }
}

bool isRecordFile(std::string_view name, const GameInfo& game) {
  return isPlayFileName(name) || equalIgnoringCase(name, game.winningsFile) ||
         equalIgnoringCase(name, drawsFile) || equalIgnoringCase(name, searchDrawsFile) ||
         equalIgnoringCase(name, doublePlayFile);
}

}  // namespace

FolderContents sampleContents(Day last, std::uint64_t seed) {
  FolderContents contents{};
  for (std::size_t i = 0; i < allGames.size(); ++i) {
    FolderContents::Part& part = contents.games[i];
    part.game = allGames[i]->game;
    part.book.draws = sampleDraws(part.game, last, seed);
    part.book.amounts = sampleAmounts(part.game, part.book.draws, seed);
  }
  return contents;
}

bool containsRecords(const fs::path& folder) {
  for (const GameInfo* game : allGames) {
    std::error_code ignored;
    const fs::path files = DataFolder(folder).resolve(game->folder);
    for (const fs::directory_entry& entry : fs::directory_iterator(files, ignored)) {
      if (isRecordFile(nameOf(entry.path()), *game)) return true;
    }
  }
  return false;
}

void requireGameFolders(const fs::path& root) {
  if (isThere(root) && !fs::is_directory(root)) {
    throw std::runtime_error(textOf(root) + " is in the way: it is not a folder. Nothing was changed");
  }
  for (const GameInfo* game : allGames) requireRoomFor(root, game->folder);
}

void writeFolder(const fs::path& folder, const FolderContents& contents, const Settings& settings) {
  makeBook(folder, settings, [&](const fs::path& root) {
    for (const FolderContents::Part& part : contents.games) {
      FolderFiles files(root, infoOf(part.game).folder);
      stageDraws(files, part);
      addPlays(files, part);
      files.commit();
    }
  });
}

std::vector<ExportAddress> exportAddresses(const Settings& settings) {
  return {{Game::powerBall, exportAddress(settings, Game::powerBall)},
          {Game::megaMillions, exportAddress(settings, Game::megaMillions)}};
}

std::vector<GameFetch> makeFetchedFolder(const DataFolder& folder, const Clock& clock,
                                         const Settings& settings, const FetchSettings& limits,
                                         TransferWatch* watch) {
  requireGameFolders(folder.root());
  requireNoRecords(folder.root());
  const std::vector<ExportAddress> addresses = exportAddresses(settings);
  FetchedExports exports(folder, clock, addresses.size(), limits, watch);
  for (const ExportAddress& from : addresses) exports.fetch(from);
  if (exports.isComplete()) {
    makeBook(folder.root(), settings, [&](const fs::path& root) { exports.takeInto(DataFolder(root)); });
  }
  return exports.results();
}

std::string makeFolderFromFiles(const DataFolder& folder, const Clock& clock, const fs::path& powerBallDraws,
                                const fs::path& megaMillionsDraws) {
  const Day today = parseDay(clock.date()).value();
  FolderContents contents{{{{Game::powerBall, {}, false}, {Game::megaMillions, {}, false}}}};
  std::ostringstream report;
  for (FolderContents::Part& part : contents.games) {
    const fs::path& file = part.game == Game::powerBall ? powerBallDraws : megaMillionsDraws;
    const exports::ExportedDraws draws = exports::readDrawsFile(part.game, file, today);
    try {
      const exports::Merge merge = exports::mergeExport(part.game, draws, {}, {}, exports::DrawOrigin::real);
      report << infoOf(part.game).name << ":\n";
      exports::print(merge.report, part.game, report);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error(join(textOf(file), ": ", error.what()));
    }
    part.book.draws = draws.draws;
  }
  writeFolder(folder.root(), contents, readSettings(folder));
  return report.str();
}

void replaceDraws(const fs::path& folder, const FolderContents::Part& part) {
  FolderFiles files(folder, infoOf(part.game).folder);
  stageDraws(files, part);
  files.commit();
}

void makeSampleFolder(const fs::path& folder, std::uint64_t seed) {
  const SystemClock clock;
  const Day last = lastDrawnDay(clock.date(), clock.time());
  FolderContents contents = sampleContents(last, seed);
  for (FolderContents::Part& part : contents.games) addSamplePlays(part.game, part.book, last, seed);
  writeFolder(folder, contents);
}

}  // namespace tallywick::setup
