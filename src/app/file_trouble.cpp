// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/file_trouble.h"

#include "app/error_explained.h"
#include "core/data_folder.h"
#include "core/plays.h"
#include "core/text.h"
#include "core/torn_line.h"
#include "core/words.h"

#include <string_view>

namespace tallywick {

namespace {

constexpr PlaySlot playSlots[] = {PlaySlot::committed, PlaySlot::played};

struct DrawFile {
  std::string_view name;
  /// Behind the game's name.
  std::string_view contents;
};

std::vector<DrawFile> drawFilesOf(const GameInfo& game) {
  std::vector<DrawFile> files = {{drawsFile, "draws"},
                                 {searchDrawsFile, "draws for searches and checks"},
                                 {game.winningsFile, "amounts"}};
  if (game.game == Game::powerBall) files.push_back({doublePlayFile, "Double Play draws"});
  return files;
}

std::optional<FileTrouble> tornPlays(const GameInfo& game, PlaySlot slot, const DataFolder& folder) {
  constexpr std::size_t mostShown = 100;
  const SequentialReader plays = openPlays(folder, playFilePath(game, slot));
  const std::optional<TornLine> torn = firstTornLine(plays.text(), playFields);
  if (!torn) return std::nullopt;
  const std::string line = std::to_string(torn->number);
  const std::filesystem::path file = folder.resolve(playFilePath(game, slot));
  const std::string shown = asUtf8(torn->text.substr(0, mostShown));
  return FileTrouble{.isTorn = true,
                     .heading = join("The file of your ", game.name, " plays (", playFileName(game, slot),
                                     ") is damaged in line ", line, ":"),
                     .text = "the plays behind it cannot be read. Mend it before you go on.",
                     .mending = join("The file is ", textOf(file), ".\n\nIts line ", line, " does not have ",
                                     std::to_string(playFields), " fields: ",
                                     shown.empty() ? "it is empty" : shown, "\n\n", mendingOf(file))};
}

}  // namespace

std::vector<std::string> filesWatched(const GameInfo& game) {
  std::vector<std::string> files;
  for (const PlaySlot slot : playSlots) files.push_back(playFilePath(game, slot));
  for (const DrawFile& file : drawFilesOf(game)) files.push_back(inFolder(game, file.name));
  return files;
}

std::string missingDrawFiles(const GameInfo& game, const DataFolder& folder) {
  const std::vector<DrawFile> all = drawFilesOf(game);
  std::vector<DrawFile> missing;
  std::vector<std::string> names;
  for (const DrawFile& file : all) {
    if (folder.exists(inFolder(game, file.name))) continue;
    missing.push_back(file);
    names.emplace_back(file.name);
  }
  if (missing.empty() || missing.size() == all.size()) return {};
  if (missing.size() > 1) return join("Files of the ", game.name, " draws are missing: ", listed(names), ".");
  return join("The file of the ", game.name, " ", missing[0].contents, " (", names[0], ") is missing.");
}

std::optional<FileTrouble> troubleOf(const GameInfo& game, const DataFolder& folder) {
  for (const PlaySlot slot : playSlots) {
    if (std::optional<FileTrouble> torn = tornPlays(game, slot, folder)) return torn;
  }
  const std::string missing = missingDrawFiles(game, folder);
  if (missing.empty()) return std::nullopt;
  const bool isAmounts = missing.find("amounts (") != std::string::npos;
  return FileTrouble{.isTorn = false,
                     .heading = missing,
                     .text = isAmounts
                                 ? "Restore a backup, or let Update make the file anew: amounts that it does "
                                   "not know are blank."
                                 : "Update fetches the draws anew, or restore a backup."};
}

}  // namespace tallywick
