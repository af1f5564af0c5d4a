// SPDX-License-Identifier: GPL-3.0-or-later
// What goes into a game folder, before it is written as records.
#pragma once

#include "core/day.h"
#include "exports/entries.h"

#include <vector>

namespace tallywick::setup {

using exports::AmountEntry;
using exports::Balls;
using exports::DrawEntry;

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
