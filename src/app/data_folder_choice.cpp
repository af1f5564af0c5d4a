// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/data_folder_choice.h"

#include "core/data_folder.h"
#include "core/file_names.h"
#include "core/games.h"
#include "core/os.h"
#include "core/runtime_error.h"

#include <exception>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

/// The folder of that name, seen from the working folder, which may have been removed.
fs::path seenFromHere(const fs::path& named) {
  std::error_code error;
  fs::path folder = fs::absolute(named, error);
  if (error) throw RuntimeError(ErrorNumber::pathNotFound, textOf(named) + " (the working folder is gone)");
  return folder;
}

}  // namespace

fs::path chooseDataFolder(const std::string& named) {
  if (!named.empty()) return seenFromHere(pathOf(named));
  if (const std::string folder = os::environment("TALLYWICK_FOLDER"); !folder.empty()) {
    return seenFromHere(pathOf(folder));
  }
  std::error_code error;
  fs::path here = fs::current_path(error);
  if (!error && isDataFolder(here)) return here;
  return os::userDataFolder();
}

bool isDataFolder(const fs::path& folder) {
  try {
    return fs::is_directory(DataFolder(folder).resolve(numbersFolder));
  } catch (const std::exception&) {
    return false;  // A folder that cannot be looked into is no record book of this user's.
  }
}

}  // namespace tallywick
