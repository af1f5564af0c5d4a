// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/data_folder.h"

#include "core/runtime_error.h"
#include "core/text.h"

#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

bool isSlash(char letter) {
  return letter == '\\' || letter == '/';
}

/// Whether `written` begins with the install folder, `\` and `/` alike.
bool underInstallFolder(std::string_view written) {
  if (written.size() < installFolder.size()) return false;
  if (written.size() > installFolder.size() && !isSlash(written[installFolder.size()])) return false;
  for (std::size_t i = 0; i < installFolder.size(); ++i) {
    if (isSlash(installFolder[i]) != isSlash(written[i])) return false;
    if (!isSlash(written[i]) && !equalIgnoringCase(installFolder.substr(i, 1), written.substr(i, 1)))
      return false;
  }
  return true;
}

}  // namespace

DataFolder::DataFolder(fs::path root) : root_(std::move(root)) {}

fs::path DataFolder::resolve(std::string_view written) const {
  std::string_view rest = written;
  if (underInstallFolder(rest)) {
    rest.remove_prefix(installFolder.size());
  } else if (rest.find(':') != std::string_view::npos || (!rest.empty() && isSlash(rest.front()))) {
    throw RuntimeError(ErrorNumber::pathNotFound, std::string(written));
  }
  fs::path found = root_;
  while (!rest.empty()) {
    const std::size_t slash = rest.find_first_of("\\/");
    const std::string_view part = rest.substr(0, slash);
    rest.remove_prefix(slash == std::string_view::npos ? rest.size() : slash + 1);
    if (part.empty() || part == ".") continue;
    if (part == "..") throw RuntimeError(ErrorNumber::pathNotFound, std::string(written));
    found = entryInAnyCase(found, part, rest.empty() ? Entry::any : Entry::folder);
  }
  return found;
}

bool DataFolder::exists(std::string_view written) const {
  std::error_code ignored;
  return fs::is_regular_file(resolve(written), ignored);
}

fs::path entryInAnyCase(const fs::path& folder, std::string_view name, Entry wanted) {
  std::string best;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    std::string candidate = nameOf(entry->path());
    if (!equalIgnoringCase(candidate, name) || (!best.empty() && best < candidate)) continue;
    std::error_code ignored;
    if (wanted == Entry::any || entry->is_directory(ignored)) best = std::move(candidate);
  }
  // A folder that cannot be listed may contain the name in another case: to take it as missing would make it
  // twice.
  if (error && error != std::errc::no_such_file_or_directory && error != std::errc::not_a_directory) {
    throw runtimeErrorFrom(error, folder);
  }
  return folder / pathOf(best.empty() ? name : std::string_view(best));
}

fs::path otherSpelling(const fs::path& entry) {
  const std::string name = nameOf(entry);
  std::error_code error;
  for (fs::directory_iterator other(entry.parent_path(), error), end; !error && other != end;
       other.increment(error)) {
    const std::string candidate = nameOf(other->path());
    if (candidate != name && equalIgnoringCase(candidate, name)) return other->path();
  }
  return {};
}

}  // namespace tallywick
