// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/incoming_files.h"

#include "core/data_folder.h"
#include "core/dated_copies.h"
#include "core/file_names.h"
#include "core/text.h"
#include "update/transfer_errors.h"

#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

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
    : folder_(std::move(folder)), commit_(folder_), clock_(clock) {
  for (const ListedFile& file : files) takenNames_.insert(lowered(file.name));
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_)) {
    const std::string name = lowered(nameOf(entry.path()));
    if (takenNames_.contains(name) && entry.is_directory()) {
      throw transferError(TransferFault::name, join("the file ", inQuotes(name), " would replace a folder"));
    }
  }
}

void IncomingFiles::add(std::string_view name, std::string_view contents) {
  const fs::path old = entryInAnyCase(folder_, name);
  const bool isKept = isPlayFileName(name) && fs::exists(old) && os::readFile(old).view() != contents;
  if (isKept) copies_.emplace_back(name, stageDatedCopy(commit_, name, clock_, takenNames_));
  commit_.stage(name, contents);
}

void IncomingFiles::commit() {
  commit_.commit();
  for (const auto& [name, copy] : copies_) pruneDatedCopies(folder_, name, copy);
}

}  // namespace tallywick
