// SPDX-License-Identifier: GPL-3.0-or-later
// The games over the years: when they are drawn, from which numbers, and what a match pays.
#pragma once

#include "core/day.h"
#include "core/games.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace tallywick {

/// The highest numbers of a draw; the lowest is 1.
struct Matrix {
  int white;
  int extra;
};

/// Whole dollars for one play before any multiplier. There is none for the jackpot, which is announced for
/// each draw.
struct Prizes {
  /// By the count of white balls, without the extra ball; 0 where that wins nothing.
  std::array<std::int64_t, 6> whites;
  /// With the extra ball; the last entry is the jackpot's and 0.
  std::array<std::int64_t, 6> whitesAndExtra;
};

/// A time in which the numbers and prizes of a game stay the same.
struct Era {
  Day from;
  Matrix matrix;
  /// Null where no table is published.
  const Prizes* prizes;
};

/// Oldest first; the last one goes on until the game changes again.
std::span<const Era> erasOf(Game game);

/// The first draw that the eras cover.
Day firstDrawDay(Game game);

/// PowerBall is drawn a third time a week, and Double Play with it, from this day on.
inline constexpr Day doublePlayBegin = dayOf(2021, 8, 23);

/// The numbers in play on `day`; none before the first draw.
std::optional<Matrix> matrixOn(Game game, Day day);

/// What a play for `day` with so many matched white balls wins by the published table. None for the jackpot,
/// where nothing is won, and where no table covers the day.
std::optional<std::int64_t> publishedPrize(Game game, Day day, std::size_t whites, bool extra);

/// Whether the game is drawn on `day` by its schedule; never before its first draw.
bool isDrawDay(Game game, Day day);

/// The weekdays on which the game is drawn today, in the calendar file's day codes: "136" or "25".
std::string_view drawDayCodes(Game game);

/// The scheduled draws from `first` to `last`, both included, oldest first.
std::vector<Day> drawDays(Game game, Day first, Day last);

/// The first scheduled draw after `day`.
Day drawDayAfter(Game game, Day day);

/// The last day whose draw has taken place at `date` (MM-DD-YYYY) and `time` (HH:MM:SS): today's is drawn at
/// eleven in the evening. std::invalid_argument where it is not a date.
Day lastDrawnDay(std::string_view date, std::string_view time);

}  // namespace tallywick
