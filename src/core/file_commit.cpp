// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/file_commit.h"

#include "core/data_folder.h"
#include "core/journal.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/work_files.h"

#include <algorithm>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

void requireStageable(const fs::path& folder, std::string_view name) {
  if (canBeStaged(name)) return;
  throw RuntimeError(ErrorNumber::pathFileAccess,
                     join(textOf(folder), ": \"", name, "\" is not a plain file name"));
}

}  // namespace

os::FileLock lockFolder(const fs::path& folder) {
  os::FileLock lock(folder / lockName, os::FileLock::Wait::yes);
  finishChange(folder);
  return lock;
}

FileCommit::FileCommit(fs::path folder) : folder_(std::move(folder)), lock_(lockFolder(folder_)) {}

FileCommit::~FileCommit() {
  std::error_code ignored;
  for (const std::string& name : names_) fs::remove(stagedPath(folder_, name), ignored);
}

void FileCommit::stage(std::string_view name, std::string_view contents, os::Access access) {
  requireStageable(folder_, name);
  names_.emplace_back(name);
  os::writeDurably(stagedPath(folder_, name), contents, access);
}

void FileCommit::stageRemoval(std::string_view name) {
  requireStageable(folder_, name);
  removedNames_.emplace_back(name);
}

void FileCommit::commit() {
  std::vector<Replacement> entries;
  for (const std::string& name : names_) {
    const fs::path staged = stagedPath(folder_, name);
    if (entryType(staged) != fs::file_type::regular) {
      throw RuntimeError(ErrorNumber::fileNotFound, textOf(staged));
    }
    entries.push_back({name, {}});
  }
  std::erase_if(removedNames_,
                [&](const std::string& name) { return !entryExists(entryInAnyCase(folder_, name)); });
  for (const std::string& name : removedNames_) entries.push_back({name, {}, true});
  for (Replacement& entry : entries) {
    const fs::path file = entryInAnyCase(folder_, entry.name);
    os::checkReplaceable(file);
    entry.replaces = fingerprintOf(file);
  }
  try {
    // The journal may name only what a cut of the power leaves there.
    os::syncFolder(folder_);
    replaceFile(folder_ / journalName, journalText(entries));
    takeOver(folder_, entries);
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

/// While every staged file and every file to be removed still exists, nothing has been changed and the
/// journal can go. It goes first: as long as it may exist, the staged files are needed.
void FileCommit::takeBack() noexcept {
  try {
    const bool untouched =
        std::ranges::all_of(
            names_, [&](const std::string& name) { return entryExists(stagedPath(folder_, name)); }) &&
        std::ranges::all_of(removedNames_, [&](const std::string& name) {
          return entryExists(entryInAnyCase(folder_, name));
        });
    if (untouched) {
      os::removeDurably(folder_ / journalName);
    } else {
      names_.clear();
    }
  } catch (const std::exception&) {
    names_.clear();
  }
}

}  // namespace tallywick
