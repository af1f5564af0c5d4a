// SPDX-License-Identifier: GPL-3.0-or-later
// The search tabs, panel by panel, and how their pickers are filled.
#pragma once

#include "core/draws.h"
#include "core/games.h"
#include "search/play_counts.h"
#include "search/two_three_search.h"

#include <array>
#include <string>

namespace tallywick {

struct SearchPages {
  explicit SearchPages(Form& form) : twoThree(form), havePlayed(form), played(form), havePlayedPlays(form) {}

  TwoThreePage twoThree;
  HavePlayedPage havePlayed;
  PlayedPage played;
  HavePlayedPlaysPage havePlayedPlays;
};

/// Fills Combo2 to Combo4 and List6 to List9 from every record of the game's search draws.
void fillDrawPickers(SearchPages& pages, const DataFolder& folder, const GameInfo& game);

/// Fills Combo8 from the game's played plays.
void fillPlayPicker(SearchPages& pages, const DataFolder& folder, const GameInfo& game);

/// Fills List6, List7 and List8 with the Double Play draws.
void fillDoublePlayLists(SearchPages& pages, const DataFolder& folder);

/// Puts the newest draw's six numbers on the number buttons of the first three panels.
void setSearchCaptions(SearchPages& pages, const std::array<std::string, 6>& newestDraw);

}  // namespace tallywick
