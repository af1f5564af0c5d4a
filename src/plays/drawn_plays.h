// SPDX-License-Identifier: GPL-3.0-or-later
// How many of the player's plays new draws have drawn, for a window that brings draws.
#pragma once

#include "core/day.h"
#include "core/games.h"

#include <map>
#include <optional>
#include <string>

namespace tallywick {

class DataFolder;
class PlayJudge;

class DrawnPlays {
 public:
  /// Remembers the newest draws there are.
  DrawnPlays(const DataFolder& folder, PlayJudge& judge);

  /// To be called when the draws may have changed.
  void look();
  /// The player has seen what note() says.
  void forget() { notes_.clear(); }
  /// "4 of your PowerBall plays were drawn: see My Plays, on the page Winnings." A line a game; empty where
  /// newer draws have drawn none.
  std::string note() const;

 private:
  const DataFolder& folder_;
  PlayJudge& judge_;
  std::map<Game, std::optional<Day>> newest_;
  std::map<Game, std::string> notes_;
};

}  // namespace tallywick
