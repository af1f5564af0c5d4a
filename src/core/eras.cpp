// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/eras.h"

#include "core/text.h"

#include <algorithm>
#include <stdexcept>

namespace tallywick {

namespace {

constexpr Prizes powerBall2012 = {{0, 0, 0, 7, 100, 1'000'000}, {4, 4, 7, 100, 10'000, 0}};
constexpr Prizes powerBall2015 = {{0, 0, 0, 7, 100, 1'000'000}, {4, 4, 7, 100, 50'000, 0}};
constexpr Prizes megaMillions2017 = {{0, 0, 0, 10, 500, 1'000'000}, {2, 4, 10, 200, 10'000, 0}};
constexpr Prizes megaMillions2025 = {{0, 0, 0, 10, 500, 1'000'000}, {5, 7, 10, 200, 10'000, 0}};

constexpr std::array powerBallEras = {
    Era{dayOf(1997, 11, 5), {49, 42}, nullptr},        Era{dayOf(2002, 10, 9), {53, 42}, nullptr},
    Era{dayOf(2005, 8, 31), {55, 42}, nullptr},        Era{dayOf(2009, 1, 7), {59, 39}, nullptr},
    Era{dayOf(2012, 1, 18), {59, 35}, &powerBall2012}, Era{dayOf(2015, 10, 7), {69, 26}, &powerBall2015}};

constexpr std::array megaMillionsEras = {
    Era{dayOf(2002, 5, 17), {52, 52}, nullptr}, Era{dayOf(2005, 6, 24), {56, 46}, nullptr},
    Era{dayOf(2013, 10, 22), {75, 15}, nullptr}, Era{dayOf(2017, 10, 31), {70, 25}, &megaMillions2017},
    Era{dayOf(2025, 4, 8), {70, 24}, &megaMillions2025}};

/// The weekdays of the draws from a day on, as the calendar file codes them: Monday is 1.
struct Schedule {
  Day from;
  std::string_view codes;
};

constexpr std::array powerBallSchedules = {Schedule{powerBallEras.front().from, "36"},
                                           Schedule{doublePlayBegin, "136"}};
constexpr std::array megaMillionsSchedules = {Schedule{megaMillionsEras.front().from, "25"}};

/// Mega Millions was not drawn on these Christmas days.
constexpr std::array megaMillionsHolidays = {dayOf(2007, 12, 25), dayOf(2009, 12, 25)};

std::span<const Schedule> schedulesOf(Game game) {
  if (game == Game::powerBall) return powerBallSchedules;
  return megaMillionsSchedules;
}

/// The last of `periods` that has begun on `day`; null before the first.
template <typename Period>
const Period* periodOn(std::span<const Period> periods, Day day) {
  const auto next = std::ranges::upper_bound(periods, day, {}, &Period::from);
  return next == periods.begin() ? nullptr : &*(next - 1);
}

}  // namespace

std::span<const Era> erasOf(Game game) {
  if (game == Game::powerBall) return powerBallEras;
  return megaMillionsEras;
}

Day firstDrawDay(Game game) {
  return erasOf(game).front().from;
}

std::optional<Matrix> matrixOn(Game game, Day day) {
  const Era* const era = periodOn(erasOf(game), day);
  if (era == nullptr) return std::nullopt;
  return era->matrix;
}

std::optional<std::int64_t> publishedPrize(Game game, Day day, std::size_t whites, bool extra) {
  const Era* const era = periodOn(erasOf(game), day);
  if (era == nullptr || era->prizes == nullptr) return std::nullopt;
  const std::int64_t prize = (extra ? era->prizes->whitesAndExtra : era->prizes->whites).at(whites);
  if (prize == 0) return std::nullopt;
  return prize;
}

bool isDrawDay(Game game, Day day) {
  const Schedule* const schedule = periodOn(schedulesOf(game), day);
  if (schedule == nullptr ||
      schedule->codes.find(static_cast<char>('0' + day.weekday())) == std::string_view::npos)
    return false;
  return game != Game::megaMillions ||
         std::ranges::find(megaMillionsHolidays, day) == megaMillionsHolidays.end();
}

std::string_view drawDayCodes(Game game) {
  return schedulesOf(game).back().codes;
}

std::vector<Day> drawDays(Game game, Day first, Day last) {
  std::vector<Day> days;
  for (Day day = first; day <= last; day += 1) {
    if (isDrawDay(game, day)) days.push_back(day);
  }
  return days;
}

Day drawDayAfter(Game game, Day day) {
  do {
    day += 1;
  } while (!isDrawDay(game, day));
  return day;
}

Day lastDrawnDay(std::string_view date, std::string_view time) {
  const std::optional<Day> today = parseDay(date);
  if (!today) throw std::invalid_argument(join("\"", date, "\" is not a date; expected MM-DD-YYYY"));
  return time > "23:00:00" ? *today : *today - 1;
}

}  // namespace tallywick
