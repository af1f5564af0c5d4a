// SPDX-License-Identifier: GPL-3.0-or-later
// What a player wants to know of a game at a glance: its newest draw, the next one, the plays that wait for
// it and the plays that won. Plain texts: a window only shows them.
#pragma once

#include "core/games.h"

#include <array>
#include <optional>
#include <string>

namespace tallywick {

class Clock;
class DataFolder;
class PlayJudge;

struct Glance {
  /// A part whose file cannot be read has no text; its tip then says why.
  struct Part {
    std::string text;
    std::string tip;
  };
  struct Balls {
    std::array<std::string, 5> white;
    std::string extra;
  };

  /// The date with its weekday, "Wed 11-18-2026".
  Part newest;
  /// "Sat 12-21 is missing", "Sat 12-21 and two more are missing": draws of days before today that are newer
  /// than the newest one.
  Part missing;
  /// None where the newest draw has no text.
  std::optional<Balls> balls;
  /// "Sat 11-21-2026", "today, Sat 11-21-2026".
  Part next;
  /// "3 plays", "3 plays (5 in all)" where some wait for other draws.
  Part waiting;
  /// "12, of which 4 won (2 more by Double Play)".
  Part wins;
};

/// Changes nothing and raises nothing. Without a clock the next draw is the one after the newest; with it, a
/// draw that has taken place and is not in the record book is not the next one.
Glance glanceAt(const GameInfo& game, const DataFolder& folder, PlayJudge& judge, const Clock* clock);

}  // namespace tallywick
