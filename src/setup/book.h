// What goes into a game folder, before it is written as records.
#pragma once

#include "core/day.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tallywick::setup {

/// Five white balls and the extra ball, of a draw or a play.
struct Balls {
  std::array<int, 5> white;
  int extra;
};

struct DrawEntry {
  Day day;
  Balls balls;
  /// The tenth field: the number that multiplies the prizes, without a leading zero; "1" where there was
  /// none.
  std::string multiplier = "1";
  std::optional<Balls> doublePlay = {};
};

struct AmountEntry {
  Day day;
  /// As it is to be shown.
  std::string amount;
  /// How many tickets won it.
  int marks = 0;
};

struct PlayEntry {
  Day day;
  Balls balls;
};

/// One game's folder. Draws and amounts are newest first.
struct GameBook {
  std::vector<DrawEntry> draws;
  std::vector<AmountEntry> amounts;
  std::vector<PlayEntry> committed;
  std::vector<PlayEntry> played;
  std::vector<Balls> savedTexts;
};

}  // namespace tallywick::setup
