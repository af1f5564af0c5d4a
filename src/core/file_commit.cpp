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

fs::path stagedPath(const fs::path& folder, std::string_view name) {
  return folder / fs::path(std::u8string(name.begin(), name.end())).concat(stagedSuffix);
}

/// The staged files of `folder` that an uncommitted change left behind go.
void removeStaged(const fs::path& folder) {
  std::vector<fs::path> leftovers;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (nameOf(entry.path()).ends_with(stagedSuffix)) leftovers.push_back(entry.path());
  }
  for (const fs::path& leftover : leftovers) os::removeDurably(leftover);
}

/// Takes over the staged files that still stand. Doing it twice changes nothing: a staged name is used once.
void takeOver(const fs::path& folder, const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    const fs::path staged = stagedPath(folder, name);
    if (fs::exists(staged)) os::takeName(staged, entryInAnyCase(folder, name));
  }
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
  return os::FileLock(folder / lockName, os::FileLock::Wait::yes);
}

FileCommit::FileCommit(fs::path folder) : folder_(std::move(folder)), lock_(lockFolder(folder_)) {
  finishCommit(folder_);
}

FileCommit::~FileCommit() {
  std::error_code ignored;
  for (const std::string& name : names_) fs::remove(stagedPath(folder_, name), ignored);
}

void FileCommit::stage(std::string_view name, std::string_view contents) {
  os::writeDurably(stageByCaller(name), contents);
}

fs::path FileCommit::stageByCaller(std::string_view name) {
  names_.emplace_back(name);
  return stagedPath(folder_, name);
}

void FileCommit::commit() {
  std::string journal(journalHead);
  for (const std::string& name : names_) journal.append(name).append("\n");
  replaceFile(folder_ / journalName, journal);
  // From here on the change is made; whatever goes wrong now, the journal finishes it at the next occasion.
  const std::vector<std::string> names = std::exchange(names_, {});
  takeOver(folder_, names);
  os::removeDurably(folder_ / journalName);
}

void finishCommit(const fs::path& folder) {
  std::error_code ignored;
  if (!fs::is_directory(folder, ignored)) return;
  const fs::path journal = folder / journalName;
  if (fs::exists(journal, ignored)) {
    const os::FileBytes bytes = os::readFile(journal);
    std::string_view rest = bytes.view();
    if (!rest.starts_with(journalHead)) {
      throw RuntimeError(ErrorNumber::pathFileAccess,
                         join(journal.string(), " is no journal of this program"));
    }
    rest.remove_prefix(journalHead.size());
    std::vector<std::string> names;
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find('\n'), rest.size());
      names.emplace_back(rest.substr(0, end));
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    takeOver(folder, names);
    os::removeDurably(journal);
  }
  removeStaged(folder);
}

void recoverFolder(const fs::path& folder) {
  std::error_code ignored;
  if (!fs::is_directory(folder, ignored)) return;
  const os::FileLock lock = lockFolder(folder);
  finishCommit(folder);
}

}  // namespace tallywick
