// SPDX-License-Identifier: GPL-3.0-or-later
// The games' numbers and draw days as they are published.
#include "core/eras.h"

#include <gtest/gtest.h>

namespace tallywick {
namespace {

TEST(Eras, BeginOnTheirFirstDay) {
  struct Row {
    Game game;
    Day first;
    int white, extra;
  };
  constexpr Row rows[] = {
      {Game::powerBall, dayOf(1997, 11, 5), 49, 42},     {Game::powerBall, dayOf(2002, 10, 9), 53, 42},
      {Game::powerBall, dayOf(2005, 8, 31), 55, 42},     {Game::powerBall, dayOf(2009, 1, 7), 59, 39},
      {Game::powerBall, dayOf(2012, 1, 18), 59, 35},     {Game::powerBall, dayOf(2015, 10, 7), 69, 26},
      {Game::megaMillions, dayOf(2002, 5, 17), 52, 52},  {Game::megaMillions, dayOf(2005, 6, 24), 56, 46},
      {Game::megaMillions, dayOf(2013, 10, 22), 75, 15}, {Game::megaMillions, dayOf(2017, 10, 31), 70, 25},
      {Game::megaMillions, dayOf(2025, 4, 8), 70, 24}};
  const Row* before = nullptr;
  for (const Row& row : rows) {
    SCOPED_TRACE(displayDate(row.first));
    const std::optional<Matrix> matrix = matrixOn(row.game, row.first);
    EXPECT_TRUE(matrix && matrix->white == row.white && matrix->extra == row.extra);
    const std::optional<Matrix> earlier = matrixOn(row.game, row.first - 1);
    const bool isFirst = before == nullptr || before->game != row.game;
    EXPECT_EQ(earlier.has_value(), !isFirst);
    EXPECT_TRUE(isFirst || (earlier->white == before->white && earlier->extra == before->extra));
    EXPECT_TRUE(isDrawDay(row.game, row.first) && (!isFirst || firstDrawDay(row.game) == row.first));
    before = &row;
  }
}

TEST(DrawDays, AreThoseOfTheWeekAndTheYear) {
  const auto days = [](Game game, Day first, int count) {
    std::string text;
    for (const Day day : drawDays(game, first, first + (count - 1))) text += displayDate(day).substr(0, 6);
    return text;
  };
  EXPECT_EQ(days(Game::powerBall, dayOf(2021, 8, 16), 14), "08-18-08-21-08-23-08-25-08-28-");
  EXPECT_EQ(days(Game::megaMillions, dayOf(2026, 6, 15), 7), "06-16-06-19-");
  EXPECT_EQ(days(Game::megaMillions, dayOf(2007, 12, 24), 7), "12-28-");
  EXPECT_EQ(days(Game::megaMillions, dayOf(2009, 12, 21), 7), "12-22-");
  EXPECT_EQ(displayDate(drawDayAfter(Game::powerBall, dayOf(2026, 6, 17))), "06-20-2026");
  EXPECT_EQ(std::string(drawDayCodes(Game::powerBall)) + "|" + std::string(drawDayCodes(Game::megaMillions)),
            "136|25");
}

}  // namespace
}  // namespace tallywick
