// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/sample_plays.h"

#include "core/data_folder.h"
#include "core/dated_copies.h"
#include "core/file_commit.h"
#include "core/plays.h"

#include <array>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace tallywick {

namespace {

constexpr std::array playSlots = {PlaySlot::committed, PlaySlot::played, PlaySlot::current};

bool isSame(const DataFolder& folder, std::string_view left, std::string_view right) {
  return openPlays(folder, left).text() == openPlays(folder, right).text();
}

}  // namespace

std::size_t countPlays(const GameInfo& game, const DataFolder& folder) {
  std::size_t count = 0;
  for (const PlaySlot slot : playSlots) count += PlayFile(folder, playFilePath(game, slot)).plays().size();
  return count;
}

void takePlaysAway(const GameInfo& game, const DataFolder& folder, const Clock& clock) {
  std::vector<std::string> names = {savedTextsFileName(game)};
  for (const PlaySlot slot : playSlots) names.push_back(playFileName(game, slot));
  FileCommit change(folder.resolve(game.folder));
  std::vector<std::pair<std::string, std::string>> copies;
  const auto isThere = [&](const std::string& name) {
    const std::string written = inFolder(game, name);
    return folder.exists(written) && std::filesystem::file_size(folder.resolve(written)) > 0;
  };
  for (const std::string& name : names) {
    if (isThere(name)) copies.emplace_back(name, stageDatedCopy(change, name, clock));
  }
  for (const auto& [name, copy] : copies) change.stage(name, "");
  for (const PlaySlot slot : {PlaySlot::committed, PlaySlot::played}) {
    const std::string save = saveFileName(game, slot);
    if (!isThere(save)) continue;
    if (!isSame(folder, inFolder(game, save), playFilePath(game, slot)))
      copies.emplace_back(save, stageDatedCopy(change, save, clock));
    change.stage(save, "");
  }
  change.commit();
  for (const auto& [name, copy] : copies) pruneDatedCopies(change.folder(), name, copy);
}

}  // namespace tallywick
