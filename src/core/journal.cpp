// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/journal.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/dated_copies.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/work_files.h"

#include <algorithm>
#include <cstdint>
#include <mutex>
#include <optional>
#include <set>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

/// Of a change that only replaces files: a line has the fingerprint of the file that is replaced and its
/// name.
constexpr std::string_view journalHead = "tallywick-journal 2\n";
/// Of one that removes files too: these lines begin with a word more.
constexpr std::string_view removingJournalHead = "tallywick-journal 3\n";
constexpr std::string_view removalWord = "remove ";
/// The first release's journals list names only.
constexpr std::string_view firstJournalHead = "tallywick-journal 1\n";
/// Closes a journal; no file has such a name.
constexpr std::string_view journalEnd = "/\n";
constexpr std::uintmax_t largestJournal = std::uintmax_t{1} << 20U;
/// Dated like a copy; what cannot be carried out takes such a name.
constexpr std::string_view setAsideName = "TALLYWICK not carried out.JNL";
/// What fingerprintOf() gives for a file that is missing.
constexpr std::string_view noFile = "- -";

std::mutex noticesMutex;
std::vector<std::string> notices;

/// The staged file and the journal as they are found after a crash: a folder that was copied since may have
/// them in another letter case.
fs::path foundStaged(const fs::path& folder, std::string_view name) {
  return entryInAnyCase(folder, join(name, stagedSuffix));
}
fs::path foundJournal(const fs::path& folder) {
  return entryInAnyCase(folder, journalName);
}

/// The entries of `folder` with names of the program's own, but for the lock.
std::vector<fs::path> workEntries(const fs::path& folder) {
  std::vector<fs::path> found;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::string name = nameOf(entry->path());
    if (isOwnWorkName(name) && !equalIgnoringCase(name, lockName)) found.push_back(entry->path());
  }
  if (error) throw runtimeErrorFrom(error, folder);
  return found;
}

/// Those of them that are no folders.
std::vector<fs::path> workFiles(const fs::path& folder) {
  std::vector<fs::path> found = workEntries(folder);
  std::erase_if(found, [](const fs::path& entry) { return entryType(entry) == fs::file_type::directory; });
  return found;
}

bool isFingerprint(std::string_view text) {
  const std::size_t blank = std::min(text.find(' '), text.size() - 1);
  const std::string_view size = text.substr(0, blank);
  const std::string_view hash = text.substr(blank + 1);
  return text == noFile ||
         (!size.empty() && size.find_first_not_of("0123456789") == std::string_view::npos && !hash.empty() &&
          hash.find_first_not_of("0123456789abcdef") == std::string_view::npos);
}

/// None where the line is not one that journalText() writes.
std::optional<Replacement> entryIn(std::string_view line, std::string_view head) {
  Replacement entry;
  if (head == removingJournalHead && line.starts_with(removalWord)) {
    entry.isRemoval = true;
    line.remove_prefix(removalWord.size());
  }
  if (head != firstJournalHead) {
    const std::size_t blank = line.find(' ', line.find(' ') + 1);
    if (blank == std::string_view::npos || !isFingerprint(line.substr(0, blank))) return std::nullopt;
    entry.replaces = line.substr(0, blank);
    line.remove_prefix(blank + 1);
  }
  entry.name = line;
  return canBeStaged(line) ? std::optional(entry) : std::nullopt;
}

/// None where the text is no journal of this program's: a whole one of plain names, each once.
std::optional<std::vector<Replacement>> entriesIn(std::string_view journal) {
  const std::string_view head = journal.substr(0, journalHead.size());
  if (head != journalHead && head != removingJournalHead && head != firstJournalHead) return std::nullopt;
  journal.remove_prefix(head.size());
  if (!journal.ends_with(journalEnd)) return std::nullopt;
  journal.remove_suffix(journalEnd.size());
  std::vector<Replacement> entries;
  std::set<std::string> names;
  while (!journal.empty()) {
    const std::size_t end = journal.find('\n');
    const std::optional<Replacement> entry = entryIn(journal.substr(0, end), head);
    if (end == std::string_view::npos || !entry || !names.insert(lowered(entry->name)).second) {
      return std::nullopt;
    }
    entries.push_back(*entry);
    journal.remove_prefix(end + 1);
  }
  return entries;
}

std::optional<std::vector<Replacement>> readJournal(const fs::path& journal) {
  std::error_code ignored;
  if (entryType(journal) != fs::file_type::regular || fs::file_size(journal, ignored) > largestJournal) {
    return std::nullopt;
  }
  return entriesIn(os::readFile(journal).view());
}

/// Whether nothing is in the way of a file that is still to be taken over or removed.
bool canBeTakenOver(const fs::path& folder, const Replacement& entry) {
  const fs::file_type staged =
      entry.isRemoval ? fs::file_type::regular : entryType(foundStaged(folder, entry.name));
  if (staged == fs::file_type::not_found) return true;
  try {
    os::checkReplaceable(entryInAnyCase(folder, entry.name));
  } catch (const RuntimeError&) {
    return false;
  }
  return staged == fs::file_type::regular;
}

/// Keeps a file that is about to be replaced and is not the one that the journal means.
void keepChanged(const fs::path& folder, const Replacement& entry) {
  const fs::path staged = foundStaged(folder, entry.name);
  const fs::path file = entryInAnyCase(folder, entry.name);
  if (entry.replaces.empty() || (!entry.isRemoval && !entryExists(staged))) return;
  const std::string found = fingerprintOf(file);
  if (found == noFile || found == entry.replaces) return;
  if (!entry.isRemoval && found == fingerprintOf(staged)) return;
  const std::string name = nameOf(file);
  const std::vector<DatedCopy> copies = datedCopies(folder, name);
  // A recovery that was cut short itself has made the copy already.
  const bool isKept = !copies.empty() && fingerprintOf(folder / pathOf(copies.front().name)) == found;
  const std::string copy = isKept ? copies.front().name : nextCopyName(folder, name, SystemClock());
  if (!isKept) replaceFile(folder / pathOf(copy), os::readFile(file).view());
  addRecoveryNotice(join("A change of the files in\r\n", textOf(folder),
                         "\r\nhad been cut short and is finished now. \"", name,
                         "\" had been changed meanwhile; what it contained is kept in \"", copy, "\"."));
}

/// The newest of `names` a line each, as many as a message box can show.
std::string listed(const std::vector<std::string>& names) {
  constexpr std::size_t mostNames = 10;
  std::string text;
  const std::size_t shown = std::min(names.size(), mostNames);
  for (std::size_t i = 0; i < shown; ++i) text += join("\r\n\"", names[names.size() - 1 - i], "\"");
  if (names.size() > shown) text += join("\r\nand ", std::to_string(names.size() - shown), " more");
  return text;
}

/// Gives the staged files names like those of dated copies, and then the journal one that says what it is. A
/// journal that could be read becomes unreadable first: cut short in the middle, this goes on and nothing
/// else.
void setAside(const fs::path& folder, bool isReadable) {
  const fs::path journal = foundJournal(folder);
  if (isReadable) replaceFile(journal, join("not carried out\n", os::readFile(journal).view()));
  const SystemClock clock;
  std::vector<std::string> names;
  const auto rename = [&](const fs::path& file, std::string_view name) {
    const std::string aside = nextCopyName(folder, name, clock);
    os::takeName(file, folder / pathOf(aside));
    names.push_back(aside);
  };
  for (const fs::path& work : workEntries(folder)) {
    std::string name = nameOf(work);
    const fs::file_type type = entryType(work);
    const bool isInTheWay = type == fs::file_type::regular || type == fs::file_type::directory;
    if (!isInTheWay || !lowered(name).ends_with(stagedSuffix)) continue;
    name.resize(name.size() - stagedSuffix.size());
    if (canBeStaged(name)) rename(work, name);
  }
  rename(journal, setAsideName);
  addRecoveryNotice(
      join("A change of the files in\r\n", textOf(folder),
           "\r\nwas begun and cannot be finished. The files stay as they are; what is left of the change "
           "is kept in",
           listed(names)));
}

}  // namespace

bool canBeStaged(std::string_view name) {
  return isPlainFileName(name) && !isOwnWorkName(name);
}

fs::path stagedPath(const fs::path& folder, std::string_view name) {
  return folder / pathOf(join(name, stagedSuffix));
}

std::string fingerprintOf(const fs::path& file) {
  std::error_code ignored;
  if (!fs::is_regular_file(file, ignored)) return std::string(noFile);
  return fingerprint(os::readFile(file).view());
}

std::string journalText(const std::vector<Replacement>& entries) {
  const bool removes = std::ranges::any_of(entries, &Replacement::isRemoval);
  std::string journal(removes ? removingJournalHead : journalHead);
  for (const Replacement& entry : entries) {
    journal.append(join(entry.isRemoval ? removalWord : "", entry.replaces, " ", entry.name, "\n"));
  }
  return journal.append(journalEnd);
}

void takeOver(const fs::path& folder, const std::vector<Replacement>& entries) {
  for (const Replacement& entry : entries) {
    const fs::path staged = foundStaged(folder, entry.name);
    const fs::path file = entryInAnyCase(folder, entry.name);
    if (entry.isRemoval) {
      os::removeDurably(file);
    } else if (entryExists(staged)) {
      os::takeName(staged, file);
    }
  }
}

void finishChange(const fs::path& folder) {
  const fs::path journal = foundJournal(folder);
  if (entryExists(journal)) {
    const std::optional<std::vector<Replacement>> entries = readJournal(journal);
    const auto isFree = [&](const Replacement& entry) { return canBeTakenOver(folder, entry); };
    if (entries && std::ranges::all_of(*entries, isFree)) {
      for (const Replacement& entry : *entries) keepChanged(folder, entry);
      takeOver(folder, *entries);
      os::removeDurably(journal);
    } else {
      setAside(folder, entries.has_value());
    }
  }
  for (const fs::path& leftover : workFiles(folder)) os::removeDurably(leftover);
}

bool isAtRest(const fs::path& folder) {
  return !entryExists(folder) ||
         (workFiles(folder).empty() && !entryExists(folder / journalName) && !entryExists(folder / lockName));
}

void recoverFolder(const fs::path& folder) {
  if (isAtRest(folder)) return;
  // Who holds the lock is at work now and finishes what it finds; nobody has to wait for that.
  const os::FileLock lock(folder / lockName, os::FileLock::Wait::no);
  finishChange(folder);
}

void addRecoveryNotice(std::string text) {
  const std::scoped_lock lock(noticesMutex);
  notices.push_back(std::move(text));
}

std::vector<std::string> takeRecoveryNotices() {
  const std::scoped_lock lock(noticesMutex);
  return std::exchange(notices, {});
}

}  // namespace tallywick
