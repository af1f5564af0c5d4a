// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/restored_folder.h"

#include "core/file_names.h"
#include "core/journal.h"
#include "core/os.h"
#include "core/text.h"

#include <algorithm>
#include <string>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

/// The folder that a restore has replaced last; empty without one.
fs::path newestEarlier(const fs::path& folder) {
  const std::string begin = join(nameOf(folder), earlierEnding);
  std::string newest;
  std::error_code ignored;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder.parent_path(), ignored)) {
    const std::string name = nameOf(entry.path());
    if (name.starts_with(begin)) newest = std::max(newest, name);
  }
  return newest.empty() ? fs::path() : folder.parent_path() / pathOf(newest);
}

}  // namespace

fs::path realPath(const fs::path& path) {
  const fs::path real = fs::weakly_canonical(fs::absolute(path));
  return real.has_filename() ? real : real.parent_path();
}

fs::path beside(const fs::path& folder, std::string_view ending) {
  return folder.parent_path() / pathOf(join(nameOf(folder), ending));
}

void finishRestore(const fs::path& folder) {
  fs::path book;
  try {
    book = realPath(folder);
  } catch (const fs::filesystem_error&) {
    return;  // What cannot be looked at, others report.
  }
  std::error_code ignored;
  const fs::path restored = beside(book, restoredEnding);
  const fs::path unwanted = beside(book, unwantedEnding);
  if (fs::exists(fs::symlink_status(book, ignored))) {
    // In one step, so that a restore that is at work finds all of it or nothing.
    fs::rename(restored, unwanted, ignored);
    fs::remove_all(unwanted, ignored);
    return;
  }
  if (!fs::is_directory(restored, ignored)) return;
  fs::rename(restored, book);
  os::syncFolder(book.parent_path());
  const fs::path earlier = newestEarlier(book);
  addRecoveryNotice(
      join("A restore of the record book in\r\n", textOf(book), "\r\nhad been cut short and is finished now.",
           earlier.empty() ? "" : join(" What the folder contained before is in\r\n", textOf(earlier))));
}

}  // namespace tallywick
