// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/drawn_plays.h"

#include "core/data_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "plays/judged_plays.h"
#include "plays/ticket.h"

#include <algorithm>
#include <utility>

namespace tallywick {

namespace {

/// The plays that draws later than `before` have drawn.
std::size_t countDrawn(const Judgement& plays, std::optional<Day> before) {
  return static_cast<std::size_t>(std::ranges::count_if(plays.plays, [&](const JudgedPlay& play) {
    return play.state == DrawState::drawn && (!before || *play.day > *before);
  }));
}

}  // namespace

DrawnPlays::DrawnPlays(const DataFolder& folder, PlayJudge& judge) : folder_(folder), judge_(judge) {
  for (const GameInfo* game : allGames) newest_[game->game] = newestDrawDay(*game, folder_);
}

void DrawnPlays::look() {
  for (const GameInfo* game : allGames) {
    const std::optional<Day> newest = newestDrawDay(*game, folder_);
    const std::optional<Day> before = std::exchange(newest_[game->game], newest);
    if (!newest || (before && *newest <= *before)) continue;
    notes_.erase(game->game);
    try {
      const std::size_t drawn = countDrawn(judge_.plays(*game)->judgement, before);
      if (drawn == 0) continue;
      notes_[game->game] =
          join(std::to_string(drawn), " of your ", game->name, drawn == 1 ? " plays was" : " plays were",
               " drawn: see My Plays, on the page Winnings.");
    } catch (const RuntimeError&) {
      // My Plays says what is wrong with the files.
    }
  }
}

std::string DrawnPlays::note() const {
  std::string text;
  for (const auto& [game, note] : notes_) text += join(text.empty() ? "" : "\n", note);
  return text;
}

}  // namespace tallywick
