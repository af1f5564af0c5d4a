// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/games.h"

#include "core/text.h"

namespace tallywick {

namespace {

std::string numbered(const GameInfo& game, char slot, std::string_view extension) {
  return join("QZR6", game.code, std::string_view(&slot, 1), extension);
}

}  // namespace

std::string playFileName(const GameInfo& game, PlaySlot slot) {
  return numbered(game, static_cast<char>(slot), ".Ply");
}

std::string saveFileName(const GameInfo& game, PlaySlot slot) {
  return numbered(game, static_cast<char>(slot), ".Sav");
}

std::string savedTextsFileName(const GameInfo& game) {
  return numbered(game, '9', ".Sel");
}

std::string pictureFileName(bool isExtraBall, std::string_view number) {
  return join(isExtraBall ? "%" : "#", number, ".bmp");
}

std::string playFilePath(const GameInfo& game, PlaySlot slot) {
  return inFolder(game, playFileName(game, slot));
}

std::string inFolder(const GameInfo& game, std::string_view file) {
  return join(game.folder, file);
}

}  // namespace tallywick
