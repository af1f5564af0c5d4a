// SPDX-License-Identifier: GPL-3.0-or-later
// What scripts cannot reach of the displays: the score by itself, a chart of exactly a hundred draws, the
// leftover state game, dates that come up twice, and the plays that a window emphasises.
#include "core/runtime_error.h"
#include "core/text.h"
#include "display/draws_page.h"
#include "display/judging.h"
#include "display/summary.h"
#include "display/winning_tickets.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::itemsOf;
using test::records;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(MatchScore, IsOneForAWhiteBallAndFiveForTheExtraBall) {
  const auto score = [](const std::array<std::string_view, 5>& main, std::string_view extra) {
    return matchScore({"", main, extra, ""}, {"01", "28", "2026", {"07", "12", "23", "34", "34"}, "06"});
  };
  EXPECT_EQ(score({"01", "02", "03", "04", "06"}, "07"), 0) << "the extra ball is no main number";
  EXPECT_EQ(score({"01", "02", "03", "04", "05"}, "06"), 5);
  EXPECT_EQ(score({"23", "07", "12", "04", "05"}, "01"), 3) << "in any order";
  EXPECT_EQ(score({"7", "12", "23", "04", "05"}, "6"), 2) << "numbers are texts";
  EXPECT_EQ(score({"12", "12", "12", "04", "05"}, "01"), 1) << "a number that the play repeats";
  EXPECT_EQ(score({"34", "01", "02", "04", "05"}, "01"), 2) << "a ball that the draw repeats";
}

struct Displays : testing::Test {
  test::ScratchFolder folder;
  Form form{"Form1"};
  WinningsPage page{form};
  SummaryPage summary{form};
  DrawsPage draws{form};
};

// The newest and the hundredth draw count, the one after it does not.
TEST_F(Displays, TheChartCountsAHundredDraws) {
  const auto history = [](int count, std::string_view inFront) {
    std::string text;
    for (int n = 1; n <= count; ++n) {
      text += join("01,28,2026,", inFront, n == 1 || n >= 100 ? "01,02,03,04,05,06" : "51,52,53,54,55,56",
                   ",2\r\n");
    }
    return text;
  };
  const std::string doublePlay = inFolder(powerBall, doublePlayFile);
  folder.write(ticketFilesOf(powerBall).draws, history(101, ""));
  folder.write(doublePlay, history(101, "01,02,03,04,05,06,x,y,"));
  for (std::size_t i = 0; i < 6; ++i) summary.frequent[i].setCaption(twoDigits(static_cast<int>(i) + 1));
  for (const auto show : {Command52_Click, Command27_Click, drawStartUpChart}) {
    show(draws, summary.frequent, folder.folder());
    EXPECT_EQ(draws.Draw1.bars().size(), 6U);
    for (const Chart::Bar& bar : draws.Draw1.bars()) EXPECT_EQ(bar.value, 2) << draws.Draw1.title();
  }
  folder.write(ticketFilesOf(powerBall).draws, history(99, ""));
  EXPECT_THROW(Command52_Click(draws, summary.frequent, folder.folder()), RuntimeError);
  EXPECT_EQ(draws.Draw1.bars()[0].value, 2) << "the chart stays";
  EXPECT_THAT(chartInWords(draws.Draw1), testing::EndsWith("in the last hundred PowerBall draws"));
  folder.write(ticketFilesOf(powerBall).draws, history(3, "") + "\"01\"");
  EXPECT_THROW(drawStartUpChart(draws, summary.frequent, folder.folder()), RuntimeError);
  EXPECT_EQ(draws.Draw1.bars()[0].value, 1) << "what is before a torn record";
}

TEST_F(Displays, TheFirstDrawOfADateCounts) {
  const std::string history = records(
      {"11,11,1111,01,02,03,04,05,06,2", "01,26,2026,11,12,13,14,15,16,2", "01,26,2026,21,22,23,24,25,26,2"});
  folder.write(ticketFilesOf(powerBall).draws, history);
  folder.write(inFolder(powerBall, drawsFile), history);
  folder.write(ticketFilesOf(powerBall).plays,
               records({"01-26-2026,11,12,13,44,45,46,0", "01-26-2026,21,22,23,24,25,26,0",
                        "1-26-2026,11,12,13,14,15,16,0", "11-11-1111,01,02,03,04,05,06,0",
                        "01-26-2026,31,32,33,34,35,16,0"}));
  checkByDate(page, folder.folder(), ticketFilesOf(powerBall));
  EXPECT_THAT(itemsOf(page.List10), ElementsAre(" 01-26-2026   11 12 13 44 45   46     ",
                                                " 01-26-2026   31 32 33 34 35   16     "));
  EXPECT_THAT(page.List14.emphasis(), ElementsAre("  01-26-2026      11  12  13  44  45  46",
                                                  "  01-26-2026      31  32  33  34  35  16"));
  fillWinningPlays(summary, folder.folder(), powerBall);
  EXPECT_THAT(itemsOf(summary.List2), ElementsAre(" 01-26-2026    11 12 13 44 45   46"));
}

TEST_F(Displays, TheLeftoverGameIsCheckedLikeTheOthers) {
  checkByDate(page, folder.folder(), hoosierTicketFiles());
  EXPECT_EQ(page.Combo10.text(), " No plays were created to search for") << "not even the folder exists";
  EXPECT_THROW(checkAgainstLatestDraw(page, folder.folder(), hoosierTicketFiles()), RuntimeError);
  folder.write(hoosierTicketFiles().draws, records({"01,28,2026,01,02,03,04,05,06,2"}));
  folder.write(hoosierTicketFiles().plays, records({"01-28-2026,01,02,03,34,35,36,0"}));
  checkByDate(page, folder.folder(), hoosierTicketFiles());
  EXPECT_THAT(itemsOf(page.List10), ElementsAre(" 01-28-2026   01 02 03 34 35   36     "));
  checkAgainstLatestDraw(page, folder.folder(), hoosierTicketFiles());
  EXPECT_THAT(itemsOf(page.Combo10), ElementsAre(" 01-28-2026   01 02 03 34 35   36"));
  EXPECT_THAT(itemsOf(page.List10), IsEmpty());
}

TEST(Judging, AJackpotHasTheAmountOfItsDraw) {
  const std::string play = records({"01-02-2016,10,20,30,40,50,06,x"});
  const std::string drawn = records({"01,02,2016,10,20,30,40,50,06,2"});
  const std::string amounts = records({"01,02,2016, 300 ,0", "12,30,2015,250,0"});
  EXPECT_EQ(judge(powerBall, {{}, play, drawn, {}, amounts}).plays.at(0).jackpotAmount, "300");
}

}  // namespace
}  // namespace tallywick
