// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/work_files.h"

#include "core/runtime_error.h"
#include "core/text.h"

namespace tallywick {

namespace fs = std::filesystem;

bool isOwnWorkName(std::string_view name) {
  return equalIgnoringCase(name, journalName) || equalIgnoringCase(name, lockName) ||
         lowered(name).ends_with(stagedSuffix);
}

bool isOwnName(std::string_view name) {
  return isOwnWorkName(name) || equalIgnoringCase(name, exportNoteName) ||
         equalIgnoringCase(name, typedDrawsName);
}

fs::file_type entryType(const fs::path& entry) {
  std::error_code error;
  const fs::file_type type = fs::symlink_status(entry, error).type();
  if (type == fs::file_type::none) throw runtimeErrorFrom(error, entry);
  return type;
}

bool entryExists(const fs::path& entry) {
  return entryType(entry) != fs::file_type::not_found;
}

void replaceFile(const fs::path& file, std::string_view contents, os::Access access) {
  const fs::path work = fs::path(file).concat(stagedSuffix);
  os::writeDurably(work, contents, access);
  try {
    os::takeName(work, file);
  } catch (const RuntimeError&) {
    std::error_code ignored;
    fs::remove(work, ignored);
    throw;
  }
}

}  // namespace tallywick
