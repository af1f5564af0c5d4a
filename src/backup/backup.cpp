// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/backup.h"

#include "backup/zip_archive.h"
#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_commit.h"
#include "core/games.h"
#include "core/os.h"
#include "core/restored_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/work_files.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

template <typename... Pieces>
[[noreturn]] void fail(const fs::path& file, const Pieces&... pieces) {
  throw std::runtime_error(join(textOf(file), ": ", pieces...));
}

std::string genericText(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

std::string dated(const Clock& clock) {
  const std::string date = clock.date();
  const std::string time = clock.time();
  return join(cut(date, 7, 4), "-", cut(date, 1, 5), " ", cut(time, 1, 2), cut(time, 4, 2), cut(time, 7, 2));
}

/// Keeps every other program from the plays, after it has finished what was cut short.
std::vector<os::FileLock> lockGames(const fs::path& folder) {
  std::vector<os::FileLock> locks;
  try {
    for (const GameInfo* game : allGames) {
      const fs::path plays = DataFolder(folder).resolve(game->folder);
      if (fs::is_directory(plays)) locks.push_back(lockFolder(plays));
    }
  } catch (const LockedByAnother&) {
    fail(folder, "another program is changing the play files; please try again");
  }
  return locks;
}

/// Keeps the desktop program from opening the record book; fails where it has it open.
os::FileLock lockBook(const fs::path& folder) {
  try {
    return {folder / lockName, os::FileLock::Wait::no};
  } catch (const LockedByAnother&) {
    fail(folder, "the record book is open in Tallywick; please close it first");
  }
}

/// All files but `except`, locks and work files.
BookContents contentsOf(const fs::path& folder, const fs::path& except) {
  BookContents contents;
  const fs::recursive_directory_iterator end;
  for (fs::recursive_directory_iterator entry(folder); entry != end; ++entry) {
    const std::string name = genericText(entry->path().lexically_relative(folder));
    if (isOwnWorkName(nameOf(entry->path())) || entry->path() == except) {
      entry.disable_recursion_pending();
    } else if (entry->is_regular_file()) {
      contents.emplace(name, os::readFile(entry->path()).view());
    } else if (entry->is_symlink()) {
      fail(entry->path(), "it is a link that does not lead to a file");
    } else if (entry->is_directory()) {
      contents.emplace(name + "/", "");
    }
  }
  return contents;
}

/// Takes what cannot be brought back out of `contents`, and returns its names. A folder is named once for all
/// that is in it.
std::vector<std::string> takeOutOdd(BookContents& contents) {
  std::vector<std::string> odd;
  std::erase_if(contents, [&odd](const auto& entry) {
    if (canBeRestored(entry.first)) return false;
    const bool isInside = !odd.empty() && odd.back().ends_with('/') && entry.first.starts_with(odd.back());
    if (!isInside) odd.push_back(entry.first);
    return true;
  });
  return odd;
}

bool isRecordBook(const BookContents& contents) {
  const std::string games = join(lowered(numbersFolder), "/");
  const auto isInBook = [&games](const auto& entry) { return lowered(entry.first).starts_with(games); };
  return std::ranges::any_of(contents, isInBook);
}

std::size_t filesIn(const BookContents& contents) {
  const auto isFile = [](const auto& entry) { return !entry.first.ends_with('/'); };
  return static_cast<std::size_t>(std::ranges::count_if(contents, isFile));
}

/// Writes the new folder and waits until all of it is on the disk.
void writeFolder(const fs::path& folder, const BookContents& contents) {
  fs::create_directory(folder);
  std::set<fs::path> folders = {folder};
  for (const auto& [name, bytes] : contents) {
    const fs::path file = folder / pathOf(name);
    fs::create_directories(file.parent_path());
    for (fs::path parent = file.parent_path(); parent != folder; parent = parent.parent_path())
      folders.insert(parent);
    if (name.ends_with('/')) continue;
    const bool isSecret = equalIgnoringCase(name, passwordFile) || equalIgnoringCase(name, loginFile);
    os::writeDurably(file, bytes, isSecret ? os::Access::ownerOnly : os::Access::usual);
  }
  for (const fs::path& written : folders) os::syncFolder(written);
  if (contentsOf(folder, {}) != contents)
    fail(folder, "what was written differs from what it was to contain");
}

/// Removes a file or folder that was begun and is not wanted.
class Unfinished {
 public:
  explicit Unfinished(fs::path path) : path_(std::move(path)) {}
  ~Unfinished() {
    std::error_code ignored;
    if (!path_.empty()) fs::remove_all(path_, ignored);
  }
  Unfinished(const Unfinished&) = delete;
  Unfinished& operator=(const Unfinished&) = delete;
  void keep() { path_.clear(); }

 private:
  fs::path path_;
};

void writeBackup(const fs::path& work, const BookContents& contents, BackupForm form) {
  if (form == BackupForm::folder) return writeFolder(work, contents);
  // The password for the update server is in it.
  os::writeDurably(work, zipOf(work, contents), os::Access::ownerOnly);
  if (readZip(work) != contents) fail(work, "what was written differs from the record book");
}

/// Removes from `place` what killed backups of `book` under dated names have left.
void removeLeftovers(const fs::path& book, const fs::path& place) {
  const std::string begin = nameOf(book) + " 0000-00-00 000000";
  std::vector<fs::path> leftovers;
  for (const fs::directory_entry& entry : fs::directory_iterator(place)) {
    std::string name = nameOf(entry.path());
    if (name.size() < begin.size()) continue;
    const std::string ending = name.substr(begin.size());
    name.resize(begin.size());
    std::replace_if(
        name.begin() + static_cast<std::ptrdiff_t>(nameOf(book).size()), name.end(),
        [](char letter) { return letter >= '0' && letter <= '9'; }, '0');
    if (name == begin && (ending == stagedSuffix || ending.starts_with(join(".zip", stagedSuffix))))
      leftovers.push_back(entry.path());
  }
  for (const fs::path& leftover : leftovers) fs::remove_all(leftover);
}

BookContents readBackup(const fs::path& source) {
  BookContents contents = fs::is_directory(source) ? contentsOf(source, {}) : readZip(source);
  if (!isRecordBook(contents)) fail(source, "it contains no record book");
  return contents;
}

bool isInside(const fs::path& path, const fs::path& folder) {
  return std::ranges::mismatch(folder, path).in1 == folder.end();
}

/// Lets the complete folder `restored` take the name of `book`. What `book` was takes the name `earlier`.
/// `locks` are on files in `book`: they go right before it is renamed, because no platform lets a lock file
/// be removed by its old name afterwards.
void takeOver(const fs::path& restored, const fs::path& book, const fs::path& earlier,
              std::vector<os::FileLock> locks) {
  locks.clear();
  if (!earlier.empty()) {
    fs::rename(book, earlier);
  } else {
    fs::remove(book);
  }
  try {
    os::syncFolder(book.parent_path());
    fs::rename(restored, book);
  } catch (...) {
    std::error_code ignored;
    if (!earlier.empty()) fs::rename(earlier, book, ignored);
    throw;
  }
  os::syncFolder(book.parent_path());
}

}  // namespace

BackupForm backupFormOf(const fs::path& target) {
  return lowered(nameOf(target)).ends_with(".zip") ? BackupForm::zip : BackupForm::folder;
}

fs::path datedBackup(const fs::path& folder, const Clock& clock, BackupForm form) {
  return beside(realPath(folder), join(" ", dated(clock), form == BackupForm::zip ? ".zip" : ""));
}

BackedUp backUp(const fs::path& folder, const fs::path& to) {
  const fs::path book = realPath(folder);
  const fs::path target = realPath(to);
  const BackupForm form = backupFormOf(target);
  if (fs::exists(target)) fail(target, "it exists already; nothing was written");
  if (form == BackupForm::folder && isInside(target, book)) fail(target, "it is inside the record book");
  const std::vector<os::FileLock> locks = lockGames(book);
  BookContents contents = contentsOf(book, target);
  BackedUp backup;
  if (form == BackupForm::zip) backup.leftOut = takeOutOdd(contents);
  if (!isRecordBook(contents)) fail(book, "it contains no record book");
  removeLeftovers(book, target.parent_path());
  const fs::path work = beside(target, stagedSuffix);
  fs::remove_all(work);
  Unfinished unfinished(work);
  writeBackup(work, contents, form);
  fs::rename(work, target);
  os::syncFolder(target.parent_path());
  unfinished.keep();
  backup.files = filesIn(contents);
  return backup;
}

std::string reportOf(const BackedUp& backup, const fs::path& to) {
  std::string text = join(std::to_string(backup.files), " files written to ", textOf(to), " and compared.");
  if (backup.leftOut.empty()) return text;
  text += " Left out, because a zip cannot bring the name back everywhere:";
  for (const std::string& name : backup.leftOut) text += join(" \"", name, "\"");
  return text;
}

Restored restore(const fs::path& source, const fs::path& folder, const Clock& clock) {
  const fs::path book = realPath(folder);
  const BookContents contents = readBackup(realPath(source));
  const fs::path work = beside(book, restoringEnding);
  const fs::path complete = beside(book, restoredEnding);
  fs::create_directories(book.parent_path());
  for (const fs::path& leftover : {work, complete}) fs::remove_all(leftover);
  Unfinished unfinished(work);
  writeFolder(work, contents);

  Restored restored{filesIn(contents), {}};
  std::vector<os::FileLock> locks;
  if (fs::exists(book)) {
    const bool isEmpty = fs::is_empty(book);
    os::FileLock bookLock = lockBook(book);
    locks = lockGames(book);
    locks.push_back(std::move(bookLock));
    if (!isEmpty) restored.earlier = beside(book, join(earlierEnding, dated(clock)));
    if (fs::exists(restored.earlier)) fail(restored.earlier, "it exists already; nothing was changed");
  }
  Unfinished unused(complete);
  fs::rename(work, complete);
  os::syncFolder(book.parent_path());
  takeOver(complete, book, restored.earlier, std::move(locks));
  return restored;
}

}  // namespace tallywick
