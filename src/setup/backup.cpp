// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/backup.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_commit.h"
#include "core/games.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>
#include <zip.h>

namespace tallywick::setup {

namespace fs = std::filesystem;

namespace {

/// What a record book contains, by path with "/" from its folder. The path of a folder ends in "/".
using Contents = std::map<std::string, std::string>;

constexpr std::size_t mostEntries = 100'000;
constexpr zip_uint64_t mostBytes = zip_uint64_t{1} << 31U;

template <typename... Pieces>
[[noreturn]] void fail(const fs::path& file, const Pieces&... pieces) {
  throw std::runtime_error(join(file.string(), ": ", pieces...));
}

std::string textOf(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

fs::path pathOf(std::string_view text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

/// An absolute path without a closing slash, with links followed as far as it exists.
fs::path realPath(const fs::path& path) {
  const fs::path real = fs::weakly_canonical(fs::absolute(path));
  return real.has_filename() ? real : real.parent_path();
}

std::string dated(const Clock& clock) {
  const std::string date = clock.date();
  const std::string time = clock.time();
  return join(cut(date, 7, 4), "-", cut(date, 1, 5), " ", cut(time, 1, 2), cut(time, 4, 2), cut(time, 7, 2));
}

fs::path beside(const fs::path& folder, std::string_view ending) {
  return folder.parent_path() / pathOf(join(textOf(folder.filename()), ending));
}

/// Keeps every other program from the plays, after it has finished what was cut short.
std::vector<os::FileLock> lockGames(const fs::path& folder) {
  std::vector<os::FileLock> locks;
  try {
    for (const GameInfo* game : {&powerBall, &megaMillions}) {
      const fs::path plays = DataFolder(folder).resolve(game->folder);
      if (fs::is_directory(plays)) locks.push_back(lockFolder(plays));
    }
  } catch (const LockedByAnother&) {
    fail(folder, "another program is changing the play files; please try again");
  }
  return locks;
}

/// Fails where the desktop program has the record book open.
void requireClosed(const fs::path& folder) {
  try {
    const os::FileLock lock(folder / lockName, os::FileLock::Wait::no);
  } catch (const LockedByAnother&) {
    fail(folder, "the record book is open in Tallywick; please close it first");
  }
}

Contents contentsOf(const fs::path& folder, const fs::path& except) {
  Contents contents;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(folder)) {
    const std::string name = textOf(entry.path().lexically_relative(folder));
    if (isOwnWorkName(nameOf(entry.path())) || entry.path() == except || entry.is_symlink()) continue;
    if (entry.is_directory()) contents.emplace(name + "/", "");
    if (entry.is_regular_file()) contents.emplace(name, os::readFile(entry.path()).view());
  }
  return contents;
}

struct DiscardArchive {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
using Archive = std::unique_ptr<zip_t, DiscardArchive>;

Archive openArchive(const fs::path& file, int flags) {
  int error = 0;
  zip_t* const archive = zip_open(textOf(file).c_str(), flags, &error);
  if (archive != nullptr) return Archive(archive);
  zip_error_t details;
  zip_error_init_with_code(&details, error);
  const std::string text = zip_error_strerror(&details);
  zip_error_fini(&details);
  fail(file, text);
}

void writeArchive(const fs::path& file, const Contents& contents) {
  Archive archive = openArchive(file, ZIP_CREATE | ZIP_EXCL);
  for (const auto& [name, bytes] : contents) {
    zip_int64_t added = -1;
    if (name.ends_with('/')) {
      added = zip_dir_add(archive.get(), name.c_str(), 0);
    } else if (zip_source_t* source = zip_source_buffer(archive.get(), bytes.data(), bytes.size(), 0)) {
      added = zip_file_add(archive.get(), name.c_str(), source, 0);
      if (added < 0) zip_source_free(source);
    }
    if (added < 0) fail(file, name, ": ", zip_strerror(archive.get()));
  }
  if (zip_close(archive.get()) != 0) fail(file, zip_strerror(archive.get()));
  static_cast<void>(archive.release());
}

/// Whether a name from an archive stays inside the folder and is none of the program's own.
bool isSafe(std::string_view name) {
  if (name.ends_with('/')) name.remove_suffix(1);
  if (name.find_first_of("\\:") != std::string_view::npos || name.find('\0') != std::string_view::npos)
    return false;
  while (true) {
    const std::string_view part = name.substr(0, name.find('/'));
    if (part.empty() || part == "." || part == ".." || isOwnWorkName(part)) return false;
    if (part.size() == name.size()) return true;
    name.remove_prefix(part.size() + 1);
  }
}

std::string readEntry(const fs::path& file, zip_t* archive, zip_uint64_t index, const zip_stat_t& entry) {
  const std::unique_ptr<zip_file_t, int (*)(zip_file_t*)> stream(zip_fopen_index(archive, index, 0),
                                                                 zip_fclose);
  if (!stream) fail(file, entry.name, ": ", zip_strerror(archive));
  std::string bytes(entry.size, '\0');
  const zip_int64_t got = zip_fread(stream.get(), bytes.data(), entry.size);
  char more = 0;
  // Reading on to the end has the checksum compared.
  if (got != static_cast<zip_int64_t>(entry.size) || zip_fread(stream.get(), &more, 1) != 0) {
    fail(file, entry.name, ": damaged");
  }
  return bytes;
}

Contents readArchive(const fs::path& file) {
  const Archive archive = openArchive(file, ZIP_RDONLY | ZIP_CHECKCONS);
  const auto entries = static_cast<zip_uint64_t>(zip_get_num_entries(archive.get(), 0));
  if (entries > mostEntries) fail(file, "it has too many files");
  Contents contents;
  zip_uint64_t size = 0;
  for (zip_uint64_t i = 0; i < entries; ++i) {
    zip_stat_t entry;
    zip_stat_init(&entry);
    if (zip_stat_index(archive.get(), i, ZIP_FL_ENC_RAW, &entry) != 0)
      fail(file, zip_strerror(archive.get()));
    const std::string name = entry.name;
    if (!isSafe(name)) fail(file, "\"", name, "\" is not a file of a record book");
    if (entry.size > mostBytes || (size += entry.size) > mostBytes) fail(file, "it is too large");
    const std::string bytes = name.ends_with('/') ? "" : readEntry(file, archive.get(), i, entry);
    if (!contents.emplace(name, bytes).second) fail(file, "it has \"", name, "\" twice");
  }
  return contents;
}

bool isRecordBook(const Contents& contents) {
  const auto isInBook = [](const auto& entry) { return lowered(entry.first).starts_with("qzrnumbers/"); };
  return std::ranges::any_of(contents, isInBook);
}

std::size_t filesIn(const Contents& contents) {
  const auto isFile = [](const auto& entry) { return !entry.first.ends_with('/'); };
  return static_cast<std::size_t>(std::ranges::count_if(contents, isFile));
}

void keepForOwner(const fs::path& file) {
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
}

void writeFolder(const fs::path& folder, const Contents& contents) {
  fs::create_directory(folder);
  for (const auto& [name, bytes] : contents) {
    const fs::path file = folder / pathOf(name);
    if (name.ends_with('/')) {
      fs::create_directories(file.parent_path());
      continue;
    }
    fs::create_directories(file.parent_path());
    os::writeDurably(file, bytes);
    if (equalIgnoringCase(name, passwordFile) || equalIgnoringCase(name, loginFile)) keepForOwner(file);
  }
  if (contentsOf(folder, {}) != contents) fail(folder, "what was written differs from the backup");
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

}  // namespace

fs::path datedBackup(const fs::path& folder, const Clock& clock) {
  return beside(realPath(folder), join(" ", dated(clock), ".zip"));
}

std::size_t backUp(const fs::path& folder, const fs::path& zip) {
  const fs::path book = realPath(folder);
  const fs::path target = realPath(zip);
  const fs::path work = beside(target, stagedSuffix);
  if (fs::exists(target)) fail(target, "it exists already; nothing was written");
  const std::vector<os::FileLock> locks = lockGames(book);
  const Contents contents = contentsOf(book, target);
  if (!isRecordBook(contents)) fail(book, "it contains no record book");
  fs::remove(work);
  Unfinished unfinished(work);
  writeArchive(work, contents);
  keepForOwner(work);  // the password for the update server is in it
  if (readArchive(work) != contents) fail(target, "what was written differs from the record book");
  os::syncFile(work);
  os::takeName(work, target);
  unfinished.keep();
  return filesIn(contents);
}

Restored restore(const fs::path& zip, const fs::path& folder, const Clock& clock) {
  const fs::path book = realPath(folder);
  const Contents contents = readArchive(realPath(zip));
  if (!isRecordBook(contents)) fail(zip, "it contains no record book");
  const fs::path work = beside(book, join(" restored", stagedSuffix));
  fs::create_directories(book.parent_path());
  fs::remove_all(work);
  Unfinished unfinished(work);
  writeFolder(work, contents);

  Restored restored{filesIn(contents), {}};
  if (fs::exists(book)) {
    requireClosed(book);
    lockGames(book);
    if (!fs::is_empty(book)) {
      restored.earlier = beside(book, join(" before ", dated(clock)));
      if (fs::exists(restored.earlier)) fail(restored.earlier, "it exists already; nothing was changed");
      fs::rename(book, restored.earlier);
    } else {
      fs::remove(book);
    }
  }
  try {
    fs::rename(work, book);
  } catch (...) {
    std::error_code ignored;
    if (!restored.earlier.empty()) fs::rename(restored.earlier, book, ignored);
    throw;
  }
  unfinished.keep();
  os::syncFolder(book.parent_path());
  return restored;
}

}  // namespace tallywick::setup
