// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/publish.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/file_commit.h"
#include "core/file_names.h"
#include "core/games.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"
#include "core/winnings.h"
#include "core/work_files.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallywick::setup {

namespace fs = std::filesystem;

namespace {

struct PublishedFile {
  std::string name;
  std::string bytes;
};

struct PublishedGame {
  const GameInfo& game;
  std::vector<PublishedFile> files;
  std::string newestDraw;
};

/// Of two such files nobody knows which one is meant, and a client whose file names ignore the letter case
/// would get one in the place of the other.
void requireOneSpelling(const fs::path& folder, std::string_view name) {
  const fs::path first = entryInAnyCase(folder, name);
  const fs::path other = otherSpelling(first);
  if (!other.empty()) {
    throw std::runtime_error(join(textOf(folder), " contains both ", nameOf(first), " and ", nameOf(other),
                                  "; nothing was published"));
  }
}

/// Reads a file whose records all have `FieldCount` fields. An empty one, or a cut record, is error 62.
template <std::size_t FieldCount>
PublishedFile readPublished(const DataFolder& folder, const GameInfo& game, std::string_view name) {
  requireOneSpelling(folder.resolve(game.folder), name);
  SequentialReader reader(folder, inFolder(game, name));
  reader.record<FieldCount>();
  forEachRecord<FieldCount>(reader, [](const Fields<FieldCount>&) {});
  return {std::string(name), std::string(reader.text())};
}

/// An update of this very folder is not to be caught in its middle. A folder that cannot be written is read
/// without a lock, if no change of it was cut short.
std::optional<os::FileLock> lockSource(const fs::path& folder) {
  try {
    return lockFolder(folder);
  } catch (const LockedByAnother&) {
    throw;
  } catch (const RuntimeError&) {
    if (fs::exists(folder / journalName)) throw;
    return std::nullopt;
  }
}

PublishedGame readGame(const DataFolder& folder, const GameInfo& game) {
  const std::optional<os::FileLock> lock = lockSource(folder.resolve(game.folder));
  PublishedGame published{game, {}, {}};
  published.files.push_back(readPublished<winningsFields>(folder, game, game.winningsFile));
  published.files.push_back(readPublished<drawFields>(folder, game, searchDrawsFile));
  if (game.game == Game::powerBall) {
    published.files.push_back(readPublished<doublePlayFields>(folder, game, doublePlayFile));
  }
  published.files.push_back(readPublished<drawFields>(folder, game, drawsFile));
  SequentialReader draws(published.files.back().bytes, std::string(drawsFile));
  published.newestDraw = drawOf(draws.record<drawFields>()).displayDate();
  return published;
}

/// The folder that a server shows as "/D:/". Where a folder cannot have that name, a drive has it, the tree
/// itself has to be served under it.
fs::path driveFolder(const fs::path& tree) {
  const fs::path drive("D:");
  return drive.has_root_name() ? tree : tree / drive;
}

/// Makes `folder / spelling` the same folder as `made`: it is already where the letter case counts for
/// nothing, else by a link that stays within the tree, else by a second folder.
fs::path spelledAlso(const fs::path& made, const fs::path& spelling) {
  fs::path other = made.parent_path() / spelling;
  std::error_code noLinks;
  if (!fs::exists(other)) fs::create_directory_symlink(made.filename(), other, noLinks);
  fs::create_directories(other);
  return other;
}

/// All the folders in which a game is looked for, with both spellings of the last two parts of its path: one,
/// or several where there are no links.
std::vector<fs::path> foldersOf(const fs::path& tree, const GameInfo& game) {
  std::vector<fs::path> folders;
  const auto add = [&](const fs::path& folder) {
    const auto isSame = [&](const fs::path& known) { return fs::equivalent(known, folder); };
    if (std::ranges::none_of(folders, isSame)) folders.push_back(folder);
  };
  const fs::path first = game.serverFolder;
  const fs::path second = game.serverFolderOfMenus;
  const fs::path outer = driveFolder(tree) / "QZR" / first.parent_path().filename();
  fs::create_directories(outer);
  for (const fs::path& spelled : {outer, spelledAlso(outer, second.parent_path().filename())}) {
    const fs::path inner = spelled / first.filename();
    fs::create_directories(inner);
    add(inner);
    add(spelledAlso(inner, second.filename()));
  }
  return folders;
}

bool contains(const fs::path& file, std::string_view bytes) {
  return fs::is_regular_file(file) && os::readFile(file).view() == bytes;
}

/// Raises what would stop publishInto().
void requireReplaceable(const fs::path& folder, const std::vector<PublishedFile>& files) {
  for (const PublishedFile& file : files) {
    requireOneSpelling(folder, file.name);
    os::checkReplaceable(entryInAnyCase(folder, file.name));
  }
}

/// A work file among the published ones would be listed to a client and refused by it, so it is written
/// beside their folder.
void publishInto(const fs::path& folder, const std::vector<PublishedFile>& files) {
  std::vector<std::pair<fs::path, fs::path>> names;
  for (const PublishedFile& file : files) {
    const fs::path target = entryInAnyCase(folder, file.name);
    if (contains(target, file.bytes)) continue;
    const fs::path work = (folder.parent_path() / file.name).concat(stagedSuffix);
    os::writeDurably(work, file.bytes);
    names.emplace_back(work, target);
  }
  for (const auto& [work, target] : names) os::takeName(work, target);
}

}  // namespace

void publish(const fs::path& tree, const fs::path& from, std::ostream& out) {
  const DataFolder folder(from);
  std::vector<PublishedGame> games;
  games.reserve(allGames.size());
  for (const GameInfo* game : allGames) games.push_back(readGame(folder, *game));
  fs::create_directories(tree);
  const os::FileLock lock(tree / lockName, os::FileLock::Wait::yes);
  std::vector<std::vector<fs::path>> targets;
  for (const PublishedGame& game : games) {
    targets.push_back(foldersOf(tree, game.game));
    for (const fs::path& target : targets.back()) requireReplaceable(target, game.files);
  }
  for (std::size_t i = 0; i < games.size(); ++i) {
    const PublishedGame& game = games[i];
    for (const fs::path& target : targets[i]) publishInto(target, game.files);
    out << game.game.name << ": " << game.files.size() << " files, newest draw " << game.newestDraw << ", in "
        << textOf(targets[i].front()) << "\n";
  }
}

}  // namespace tallywick::setup
