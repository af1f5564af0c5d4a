// What the summary of a game shows, on whole, short and missing files.
#include "display/summary.h"

#include "display/draw_files.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::distinctDoublePlays;
using test::distinctDraws;
using test::errorOf;
using test::fileOf;
using test::itemsOf;
using test::records;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Summary : testing::Test {
  void write(std::string_view file, std::string_view text, const GameInfo& game = powerBall) {
    folder.write(inFolder(game, file), text);
  }
  std::vector<std::string> lastFifteen(MissingAmounts missing = MissingAmounts::raise) {
    fillLastFifteen(page, folder.folder(), powerBall, missing);
    return itemsOf(page.List1);
  }
  std::vector<std::string> winningPlays() {
    fillWinningPlays(page, folder.folder(), powerBall);
    return itemsOf(page.List2);
  }

  test::ScratchFolder folder;
  Form form{"Form1"};
  SummaryPage page{form};
};

TEST_F(Summary, LastFifteenDrawsCarryTheirAmounts) {
  write(drawsFile, fileOf(distinctDraws(3)));
  write("QzrPwr.Win", records({"01,28,2026, 40 ,0", "01,27,2026,55 Million,0", "01,26,2026,60,0"}));
  EXPECT_THAT(lastFifteen(), ElementsAre(" 01-28-2026    01 02 03 04 05   76  *  40",
                                         " 01-27-2026    06 07 08 09 10   77     55 Million",
                                         " 01-26-2026    11 12 13 14 15   78      40 "));
  auto sixteen = distinctDraws(15);
  sixteen.push_back(sixteen.front());
  write(drawsFile, fileOf(sixteen));
  EXPECT_THAT(lastFifteen(), SizeIs(15));
}

TEST_F(Summary, StartUpShowsTheDrawsThatHaveNoAmounts) {
  const std::string blank = " 01-28-2026    01 02 03 04 05   76     ";
  write(drawsFile, fileOf(distinctDraws(1)) + "\"01\",\"27\"");
  EXPECT_EQ(errorOf([&] { lastFifteen(); }), 53);
  EXPECT_EQ(errorOf([&] { lastFifteen(MissingAmounts::areBlank); }), 62);
  EXPECT_THAT(itemsOf(page.List1), ElementsAre(blank)) << "the whole records before a torn one";
  write("QzrPwr.Win", "");
  write(drawsFile, fileOf(distinctDraws(1)));
  EXPECT_EQ(errorOf([&] { lastFifteen(); }), 62);
  EXPECT_THAT(lastFifteen(MissingAmounts::areBlank), ElementsAre(blank));
}

TEST_F(Summary, PlaysThatWonInTheDrawOfTheirDate) {
  EXPECT_THAT(winningPlays(), IsEmpty()) << "neither plays nor draws";
  auto draws = distinctDraws(3);
  draws.push_back(draws[1]);
  draws[3][8] = "60";
  draws.push_back({"11", "11", "1111", "01", "02", "03", "04", "05", "06", "2"});
  write(drawsFile, fileOf(draws));
  write("QZR6PWR2.Ply", records({"01-25-2026,01,02,03,04,05,06,0", "01-28-2026,31,32,33,34,35,76,0",
                                 "01-27-2026,06,07,08,34,35,01,0", "01-27-2026,31,32,33,34,35,60,0",
                                 "01-26-2026,1,2,3,4,5,78,0", "01-26-2026,11,12,33,34,35,01,0",
                                 "11-11-1111,01,02,03,04,05,06,0", "01-28-2026,01,02,03,04,05,76,0"}));
  EXPECT_THAT(winningPlays(),
              ElementsAre(" 01-28-2026    31 32 33 34 35   76", " 01-27-2026    06 07 08 34 35   01",
                          " 01-26-2026    1 2 3 4 5   78"))
      << "the first draw of a date counts, the play file's last record does not";
}

TEST_F(Summary, AmountsAndPreviousDrawsLeaveTheLastRecordOut) {
  for (const GameInfo* game : {&powerBall, &megaMillions}) {
    write(game->winningsFile, records({"01,28,2026,40,0", "01,27,2026,30,0"}), *game);
  }
  write(searchDrawsFile, fileOf(distinctDraws(2)));
  fillPreviousDraws(page, folder.folder(), powerBall);
  EXPECT_THAT(itemsOf(page.List4), ElementsAre("01-28-2026     01 02 03 04 05     76"));
  fillAmounts(page, folder.folder(), powerBall);
  EXPECT_THAT(itemsOf(page.List3), ElementsAre(" 01-28-2026    40        "));
  fillAmounts(page, folder.folder(), megaMillions);
  EXPECT_THAT(itemsOf(page.List3), ElementsAre(" 01-28-2026    40        ", " 5 of 5 Win:    $50,000",
                                               " 4 of 5 Win:    $200.00", " 3 of 5 Win:    $3"));
}

TEST_F(Summary, TheOldestOfFiveEarlierDrawsColoursARepeatedNumber) {
  auto draws = distinctDraws(15);
  draws[1][3] = "01";
  draws[3][7] = "01";
  draws[4][8] = "02";
  draws[5][9] = "03";
  draws[6][3] = "04";
  draws[2][8] = "76";
  draws[2][3] = "2";
  write(drawsFile, fileOf(draws));
  page.frequent[3].setBackColor(colors::red);
  page.frequent[5].setBackColor(colors::red);
  fillFrequentNumbers(page, folder.folder(), powerBall);
  EXPECT_THAT(newestNumbers(page), ElementsAre("01", "02", "03", "04", "05", "76"));
  std::vector<std::string> backgrounds;
  for (const Button& button : page.frequent) backgrounds.push_back(button.backColor().text());
  EXPECT_THAT(backgrounds,
              ElementsAre("#00FF00", "#FFFF00", "#C0FFFF", "buttonFace", "buttonFace", "buttonFace"));
  EXPECT_THAT(itemsOf(page.List5),
              ElementsAre(" 01, 1 draw before:", " 01-27-2026    01 07 08 09 10   77", " ",
                          " 01, 3 draws before:", " 01-25-2026    16 17 18 19 01   79", " ",
                          " 02, 4 draws before as the extra ball:", " 01-24-2026    21 22 23 24 25   02", " ",
                          " 03, 5 draws before in the record's last field:",
                          " 01-23-2026    26 27 28 29 30   81", " "));
}

TEST_F(Summary, AShortHistoryIsAnErrorBehindWhatItCanShow) {
  auto draws = distinctDraws(14);
  draws[1][3] = "01";
  write(drawsFile, fileOf(draws));
  EXPECT_EQ(errorOf([&] { fillFrequentNumbers(page, folder.folder(), powerBall); }), 62);
  EXPECT_EQ(newestNumbers(page)[5], "76");
  EXPECT_THAT(itemsOf(page.List5), SizeIs(3));
  write(drawsFile, "");
  EXPECT_EQ(errorOf([&] { fillFrequentNumbers(page, folder.folder(), powerBall); }), 62);
  EXPECT_THAT(itemsOf(page.List5), IsEmpty());
}

TEST_F(Summary, DoublePlayShowsItsOwnNumbers) {
  auto draws = distinctDoublePlays(15);
  draws.push_back(draws.back());
  draws[1].back() = "05";
  draws[2][3] = "01";
  write(doublePlayFile, fileOf(draws));
  setSummaryHeadings(page, megaMillions);
  showDoublePlay(page, folder.folder());
  EXPECT_EQ(page.Label15.caption(), "Last 15 PowerBall Draws and Winning Amounts:");
  EXPECT_EQ(page.Label16.caption(), "PowerBall Double Play Display");
  EXPECT_THAT(itemsOf(page.List2), SizeIs(15));
  EXPECT_THAT(itemsOf(page.List4), SizeIs(16));
  EXPECT_EQ(page.List2.items()[1], " 01-27-2026    06 07 08 09 10   77");
  EXPECT_EQ(page.List4.items()[15], page.List2.items()[14]);
  EXPECT_THAT(newestNumbers(page), ElementsAre("01", "02", "03", "04", "05", "76"));
  EXPECT_EQ(page.frequent[0].backColor(), colors::buttonFace) << "the main draw is not looked at";
  EXPECT_EQ(page.frequent[4].backColor(), colors::red);
  write(doublePlayFile, fileOf(distinctDoublePlays(14)));
  EXPECT_EQ(errorOf([&] { showDoublePlay(page, folder.folder()); }), 62);
}

}  // namespace
}  // namespace tallywick
