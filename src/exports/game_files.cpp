// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/game_files.h"

#include "core/data_folder.h"
#include "core/os.h"
#include "core/work_files.h"

#include <utility>

namespace tallywick::exports {

namespace fs = std::filesystem;

GameFiles readGameFiles(const GameInfo& game, const fs::path& folder) {
  const auto read = [&](std::string_view name) {
    const fs::path file = entryInAnyCase(folder, name);
    if (!fs::exists(file)) return std::string();
    return std::string(os::readFile(file).view());
  };
  GameFiles files;
  files.draws = read(drawsFile);
  files.searchDraws = read(searchDrawsFile);
  if (game.game == Game::powerBall) files.doublePlay = read(doublePlayFile);
  files.amounts = read(game.winningsFile);
  files.typed = read(typedDrawsName);
  files.exportNote = read(exportNoteName);
  return files;
}

std::vector<NewFile> changedFiles(const GameInfo& game, const GameFiles& before, GameFiles now) {
  std::vector<NewFile> changed;
  const auto add = [&](std::string_view name, const std::string& old, std::string& text) {
    const bool isRemoval = text.empty() && isOwnName(name);
    if (text != old) changed.push_back({name, std::move(text), isRemoval});
  };
  add(exportNoteName, before.exportNote, now.exportNote);
  add(typedDrawsName, before.typed, now.typed);
  add(game.winningsFile, before.amounts, now.amounts);
  if (game.game == Game::powerBall) add(doublePlayFile, before.doublePlay, now.doublePlay);
  add(searchDrawsFile, before.searchDraws, now.searchDraws);
  add(drawsFile, before.draws, now.draws);
  return changed;
}

GameFiles withChanges(const GameInfo& game, GameFiles files, const std::vector<NewFile>& changed) {
  for (const NewFile& file : changed) {
    if (file.name == exportNoteName) files.exportNote = file.contents;
    if (file.name == typedDrawsName) files.typed = file.contents;
    if (file.name == game.winningsFile) files.amounts = file.contents;
    if (file.name == doublePlayFile) files.doublePlay = file.contents;
    if (file.name == searchDrawsFile) files.searchDraws = file.contents;
    if (file.name == drawsFile) files.draws = file.contents;
  }
  return files;
}

}  // namespace tallywick::exports
