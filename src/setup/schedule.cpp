#include "setup/schedule.h"

#include <algorithm>
#include <array>
#include <span>

namespace tallywick::setup {

namespace {

struct Era {
  Day from;
  Matrix matrix;
};

constexpr std::array powerBallEras = {Era{dayOf(1997, 11, 5), {49, 42}}, Era{dayOf(2002, 10, 9), {53, 42}},
                                      Era{dayOf(2005, 8, 31), {55, 42}}, Era{dayOf(2009, 1, 7), {59, 39}},
                                      Era{dayOf(2012, 1, 18), {59, 35}}, Era{dayOf(2015, 10, 7), {69, 26}}};

constexpr std::array megaMillionsEras = {
    Era{dayOf(2002, 5, 17), {52, 52}}, Era{dayOf(2005, 6, 24), {56, 46}}, Era{dayOf(2013, 10, 22), {75, 15}},
    Era{dayOf(2017, 10, 31), {70, 25}}, Era{dayOf(2025, 4, 8), {70, 24}}};

/// Mega Millions was not drawn on these Christmas days.
constexpr std::array megaMillionsHolidays = {dayOf(2007, 12, 25), dayOf(2009, 12, 25)};

std::span<const Era> erasOf(Game game) {
  if (game == Game::powerBall) return powerBallEras;
  return megaMillionsEras;
}

}  // namespace

std::optional<Matrix> matrixOn(Game game, Day day) {
  std::optional<Matrix> matrix;
  for (const Era& era : erasOf(game)) {
    if (era.from <= day) matrix = era.matrix;
  }
  return matrix;
}

bool isDrawDay(Game game, Day day) {
  using namespace std::chrono;
  const weekday weekday(day);
  if (game == Game::megaMillions) {
    const bool holiday = std::ranges::find(megaMillionsHolidays, day) != megaMillionsHolidays.end();
    return (weekday == Tuesday || weekday == Friday) && !holiday;
  }
  return weekday == Wednesday || weekday == Saturday || (weekday == Monday && day >= doublePlayBegin);
}

std::vector<Day> drawDays(Game game, Day first, Day last) {
  std::vector<Day> days;
  for (Day day = first; day <= last; day += std::chrono::days(1)) {
    if (isDrawDay(game, day)) days.push_back(day);
  }
  return days;
}

Day drawDayAfter(Game game, Day day) {
  do {
    day += std::chrono::days(1);
  } while (!isDrawDay(game, day));
  return day;
}

}  // namespace tallywick::setup
