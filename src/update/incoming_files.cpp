// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/incoming_files.h"

#include "core/data_folder.h"
#include "core/dated_copies.h"
#include "core/file_commit.h"
#include "core/file_names.h"
#include "core/games.h"
#include "core/text.h"
#include "core/work_files.h"
#include "exports/made_up.h"
#include "update/transfer_errors.h"

#include <set>
#include <utility>

namespace tallywick {

namespace fs = std::filesystem;

void checkIncoming(const std::vector<ListedFile>& files, const IncomingLimits& limits) {
  if (files.empty())
    throw transferError(TransferFault::nothingThere, "the server's folder contains no files");
  if (files.size() > limits.files) {
    throw transferError(TransferFault::limit, "the server's folder contains too many files");
  }
  std::set<std::string> names;
  std::uint64_t room = limits.allSizes;
  for (const ListedFile& file : files) {
    const std::string lists = join("the server lists ", inQuotes(file.name));
    if (!isPlainFileName(file.name)) {
      throw transferError(TransferFault::name, join(lists, ", which is not a plain file name"));
    }
    if (isOwnName(file.name)) {
      throw transferError(TransferFault::name, join(lists, ", a name that this program reserves"));
    }
    if (!names.insert(lowered(file.name)).second) {
      throw transferError(TransferFault::name, join(lists, " twice"));
    }
    if (file.size.value_or(0) > limits.fileSize) {
      throw transferError(TransferFault::limit, join(lists, ", which is too large"));
    }
    if (file.size.value_or(0) > room) {
      throw transferError(TransferFault::limit, "the server's folder contains too much");
    }
    room -= file.size.value_or(0);
  }
}

namespace {

/// Takes the mark of made-up draws away where a draw history has come without such a mark of its own.
/// `names` are in small letters.
void stageMarkRemoval(const std::set<std::string>& names, const DataFolder& book, FileCommit& change) {
  const bool broughtDraws = names.contains(lowered(drawsFile)) || names.contains(lowered(searchDrawsFile));
  if (!broughtDraws || names.contains(lowered(exports::madeUpMark))) return;
  for (const GameInfo* game : allGames) {
    const bool isItsFolder = book.resolve(game->folder) == change.folder();
    if (isItsFolder) exports::stageMarkRemoval(book, game->game, change);
  }
}

}  // namespace

void takeIn(const std::vector<IncomingFile>& files, const DataFolder& book, const fs::path& folder,
            const Clock& clock) {
  FileCommit change(folder);
  std::set<std::string> taken;
  for (const IncomingFile& file : files) taken.insert(lowered(file.name));
  std::vector<std::pair<std::string, std::string>> copies;
  for (const IncomingFile& file : files) {
    const fs::path old = entryInAnyCase(folder, file.name);
    if (fs::is_directory(old)) {
      throw transferError(TransferFault::name,
                          join("the file ", inQuotes(file.name), " would replace a folder"));
    }
    const bool isKept =
        isPlayFileName(file.name) && fs::exists(old) && os::readFile(old).view() != file.contents;
    if (isKept) copies.emplace_back(file.name, stageDatedCopy(change, file.name, clock, taken));
    change.stage(file.name, file.contents);
  }
  // The next import would otherwise replace the draws as made-up ones.
  stageMarkRemoval(taken, book, change);
  change.commit();
  for (const auto& [name, copy] : copies) pruneDatedCopies(folder, name, copy);
}

}  // namespace tallywick
