// When the two games are drawn and from which numbers, over the years.
#pragma once

#include "core/games.h"
#include "setup/day.h"

#include <optional>
#include <vector>

namespace tallywick::setup {

/// The highest numbers of a draw; the lowest is 1.
struct Matrix {
  int white;
  int extra;
};

/// PowerBall is drawn a third time a week, and Double Play with it, from this day on.
inline constexpr Day doublePlayBegin = dayOf(2021, 8, 23);

/// The numbers in play on `day`; none before the first day that the tables know.
std::optional<Matrix> matrixOn(Game game, Day day);

bool isDrawDay(Game game, Day day);

/// The scheduled draws from `first` to `last`, both included, oldest first.
std::vector<Day> drawDays(Game game, Day first, Day last);

/// The first scheduled draw after `day`.
Day drawDayAfter(Game game, Day day);

}  // namespace tallywick::setup
