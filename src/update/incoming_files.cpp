#include "update/incoming_files.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/file_names.h"
#include "core/text.h"
#include "update/transfer_errors.h"

#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

/// YYYY-MM-DD HHMMSS.
std::string sortableDate(const Clock& clock) {
  const std::string date = clock.date();
  const std::string time = clock.time();
  return join(cut(date, 7, 4), "-", cut(date, 1, 2), "-", cut(date, 4, 2), " ", cut(time, 1, 2),
              cut(time, 4, 2), cut(time, 7, 2));
}

}  // namespace

void checkIncoming(const std::vector<ListedFile>& files, const IncomingLimits& limits) {
  if (files.empty()) throw transferError(TransferFault::nothingThere, "the server's folder holds no files");
  if (files.size() > limits.files) {
    throw transferError(TransferFault::limit, "the server's folder holds too many files");
  }
  std::set<std::string> names;
  for (const ListedFile& file : files) {
    const std::string lists = join("the server lists ", inQuotes(file.name));
    if (!isPlainFileName(file.name)) {
      throw transferError(TransferFault::name, join(lists, ", which is no plain file name"));
    }
    if (isOwnWorkName(file.name)) {
      throw transferError(TransferFault::name, join(lists, ", a name that this program keeps for itself"));
    }
    if (!names.insert(lowered(file.name)).second) {
      throw transferError(TransferFault::name, join(lists, " twice"));
    }
    if (file.size.value_or(0) > limits.fileSize) {
      throw transferError(TransferFault::limit, join(lists, ", which is too large"));
    }
  }
}

IncomingFiles::IncomingFiles(fs::path folder, const std::vector<ListedFile>& files, const Clock& clock)
    : folder_(std::move(folder)), commit_(folder_), date_(sortableDate(clock)) {
  std::set<std::string> listed;
  for (const ListedFile& file : files) listed.insert(lowered(file.name));
  takenNames_ = listed;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
    const std::string name = lowered(nameOf(entry.path()));
    takenNames_.insert(name);
    if (listed.contains(name) && entry.is_directory()) {
      throw transferError(TransferFault::name, join("the file ", inQuotes(name), " would replace a folder"));
    }
  }
}

void IncomingFiles::add(std::string_view name, std::string_view contents) {
  const fs::path old = entryInAnyCase(folder_, name);
  if (isPlayFileName(name) && fs::exists(old)) keepOld(old, contents);
  commit_.stage(name, contents);
}

void IncomingFiles::keepOld(const fs::path& file, std::string_view newContents) {
  const os::FileBytes old = os::readFile(file);
  if (old.view() != newContents) commit_.stage(freeCopyName(file), old.view());
}

std::string IncomingFiles::freeCopyName(const fs::path& file) {
  const std::string stem = nameOf(file.stem());
  const std::string extension = nameOf(file.extension());
  std::string name = join(stem, " ", date_, extension);
  for (int i = 2; !takenNames_.insert(lowered(name)).second; ++i) {
    name = join(stem, " ", date_, " ", std::to_string(i), extension);
  }
  return name;
}

}  // namespace tallywick
