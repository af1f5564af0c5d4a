// SPDX-License-Identifier: GPL-3.0-or-later
// How often each number came up, and what chance alone would give.
#include "display/number_table.h"

#include "support/record_book.h"

#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

/// PowerBall changed its ranges between the last draw and the one before it.
const std::string twoEras = records({"11,18,2026,01,02,03,04,69,26,1", "11,16,2026,01,05,06,07,08,01,1",
                                     "10,03,2015,01,09,10,11,60,35,1", "02,30,2015,01,02,03,04,05,06,1",
                                     "01,01,1990,01,02,03,04,05,06,1"});

TEST(NumberTables, CountWithinTheRangeOfEachDraw) {
  const NumberTable table = countNumbers(Game::powerBall, DrawHistory::main, twoEras);
  EXPECT_EQ(table.draws, 3U) << "no draw of a day that does not exist, or of one before the game";
  ASSERT_EQ(table.white.size(), 69U);
  ASSERT_EQ(table.extra.size(), 35U);
  const struct {
    const char* name;
    NumberCount count;
    const char* line;
  } cases[] = {
      {"in every draw", table.white[0], " 01     3     0.2       3       0.2       0  11-18-2026"},
      {"only in the older era", table.white[8], " 09     1     0.2       1       0.2       2  10-03-2015"},
      {"beyond the draw's range", table.white[59], " 60     0     0.1       0       0.1       3  never"},
      {"in the newest draw", table.white[68], " 69     1     0.1       1       0.1       0  11-18-2026"},
      {"an extra ball of old", table.extra[34], " 35     1     0.0       1       0.0       2  10-03-2015"},
  };
  for (const auto& each : cases) EXPECT_EQ(numberLine(each.count), each.line) << each.name;
  EXPECT_DOUBLE_EQ(table.white[0].allByChance, 2 * 5.0 / 69 + 5.0 / 59);
  EXPECT_DOUBLE_EQ(table.white[68].allByChance, 2 * 5.0 / 69);
}

TEST(NumberTables, TellTheLastHundredFromAll) {
  const NumberTable table =
      countNumbers(Game::megaMillions, DrawHistory::main, dailyDraws(120) + "\"12\",\"01\"");
  EXPECT_EQ(table.draws, 120U);
  EXPECT_NE(table.torn, "") << "the history ends in a cut record";
  EXPECT_EQ(table.extra[0].all, 6U);
  EXPECT_EQ(table.extra[0].recent, 5U);
  double chance = 0;
  for (const NumberCount& count : table.extra) chance += count.recentByChance;
  EXPECT_NEAR(chance, 100, 1e-9) << "each draw has one extra ball";
}

TEST(NumberTables, CountDoublePlayWhereItsNumbersAreKnown) {
  const std::string draws = dailyDraws(3, R"("2","","41","42","43","44","45","06","")") +
                            records({"12,01,2024,01,02,03,04,05,06,1,x,,,,,,,x"});
  const NumberTable table = countNumbers(Game::powerBall, DrawHistory::doublePlay, draws);
  EXPECT_EQ(table.draws, 3U);
  EXPECT_EQ(table.white[40].all, 3U);
}

TEST(NumberTables, AreSortedByAColumnAndThenByNumber) {
  std::vector<NumberCount> counts = countNumbers(Game::powerBall, DrawHistory::main, twoEras).white;
  sortNumbers(counts, NumberColumn::all, true);
  EXPECT_EQ(counts[0].number, 1);
  EXPECT_EQ(counts[1].number, 2);
  sortNumbers(counts, NumberColumn::last, false);
  EXPECT_EQ(counts[0].last, std::nullopt);
  EXPECT_EQ(counts[0].number, 12);
}

}  // namespace
}  // namespace tallywick::test
