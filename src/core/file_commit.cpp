#include "core/file_commit.h"

#include "core/data_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view journalHead = "tallywick-journal 1\n";
/// Closes a journal; no file has such a name.
constexpr std::string_view journalEnd = "/\n";

fs::path stagedPath(const fs::path& folder, std::string_view name) {
  return folder / fs::path(std::u8string(name.begin(), name.end())).concat(stagedSuffix);
}

bool stands(const fs::path& file) {
  std::error_code error;
  const bool found = fs::exists(file, error);
  if (error) throw runtimeErrorFrom(error, file);
  return found;
}

/// The files of `folder` with names of the program's own, but for the lock.
std::vector<fs::path> workFiles(const fs::path& folder) {
  std::vector<fs::path> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::string name = nameOf(entry->path());
    std::error_code ignored;
    if (!isOwnWorkName(name) || equalIgnoringCase(name, lockName) || entry->is_directory(ignored)) continue;
    found.push_back(entry->path());
  }
  if (error) throw runtimeErrorFrom(error, folder);
  return found;
}

std::string journalOf(const std::vector<std::string>& names) {
  std::string journal(journalHead);
  for (const std::string& name : names) journal.append(name).append("\n");
  return journal.append(journalEnd);
}

/// The names that a journal lists. A journal takes its name when all of it is on the disk, so one that is not
/// whole was never acted upon and lists none.
std::vector<std::string> namesIn(std::string_view journal) {
  std::vector<std::string> names;
  if (!journal.starts_with(journalHead) || !journal.ends_with(journalEnd)) return names;
  journal.remove_prefix(journalHead.size());
  journal.remove_suffix(journalEnd.size());
  while (!journal.empty()) {
    const std::size_t end = std::min(journal.find('\n'), journal.size() - 1);
    names.emplace_back(journal.substr(0, end));
    journal.remove_prefix(end + 1);
  }
  return names;
}

/// Takes over the staged files that still stand. Doing it twice changes nothing: a staged name is used once.
void takeOver(const fs::path& folder, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const fs::path staged = stagedPath(folder, name);
    if (stands(staged)) os::takeName(staged, entryInAnyCase(folder, name));
  }
}

/// Finishes a change that was cut short after its journal was in place, and removes what an uncommitted one
/// left behind.
void finishCommit(const fs::path& folder) {
  const fs::path journal = folder / journalName;
  if (stands(journal)) {
    takeOver(folder, namesIn(os::readFile(journal).view()));
    os::removeDurably(journal);
  }
  for (const fs::path& leftover : workFiles(folder)) os::removeDurably(leftover);
}

}  // namespace

bool isOwnWorkName(std::string_view name) {
  return equalIgnoringCase(name, journalName) || equalIgnoringCase(name, lockName) ||
         lowered(name).ends_with(stagedSuffix);
}

void replaceFile(const fs::path& file, std::string_view contents) {
  const fs::path work = fs::path(file).concat(stagedSuffix);
  os::writeDurably(work, contents);
  try {
    os::takeName(work, file);
  } catch (const RuntimeError&) {
    std::error_code ignored;
    fs::remove(work, ignored);
    throw;
  }
}

os::FileLock lockFolder(const fs::path& folder) {
  os::FileLock lock(folder / lockName, os::FileLock::Wait::yes);
  finishCommit(folder);
  return lock;
}

FileCommit::FileCommit(fs::path folder) : folder_(std::move(folder)), lock_(lockFolder(folder_)) {}

FileCommit::~FileCommit() {
  std::error_code ignored;
  for (const std::string& name : names_) fs::remove(stagedPath(folder_, name), ignored);
}

void FileCommit::stage(std::string_view name, std::string_view contents) {
  names_.emplace_back(name);
  os::writeDurably(stagedPath(folder_, name), contents);
}

void FileCommit::commit() {
  for (const std::string& name : names_) {
    const fs::path staged = stagedPath(folder_, name);
    if (!stands(staged)) throw RuntimeError(ErrorNumber::fileNotFound, staged.string());
    os::checkReplaceable(entryInAnyCase(folder_, name));
  }
  try {
    // The journal may name only what a cut of the power leaves standing.
    os::syncFolder(folder_);
    replaceFile(folder_ / journalName, journalOf(names_));
    takeOver(folder_, names_);
  } catch (...) {
    takeBack();
    throw;
  }
  names_.clear();
  try {
    os::removeDurably(folder_ / journalName);
  } catch (const RuntimeError&) {
    // The change is made; a journal that stays has nothing left to take over.
  }
}

/// While every staged file still stands, nothing has been taken over and the journal can go. It goes first:
/// as long as it may stand, the staged files are needed.
void FileCommit::takeBack() noexcept {
  std::error_code ignored;
  const bool untouched = std::all_of(names_.begin(), names_.end(), [&](const std::string& name) {
    return fs::exists(stagedPath(folder_, name), ignored);
  });
  try {
    if (untouched) os::removeDurably(folder_ / journalName);
  } catch (const std::exception&) {
    names_.clear();
  }
  if (!untouched) names_.clear();
}

void recoverFolder(const fs::path& folder) {
  if (!stands(folder) || (workFiles(folder).empty() && !stands(folder / lockName))) return;
  // Who holds the lock is at work now and finishes what it finds; nobody has to wait for that.
  const os::FileLock lock(folder / lockName, os::FileLock::Wait::no);
  finishCommit(folder);
}

}  // namespace tallywick
