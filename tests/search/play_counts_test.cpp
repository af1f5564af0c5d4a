// The single-number counts: which file the visible frame stands for, how matches are listed, what is reset.
#include "core/runtime_error.h"
#include "search_window.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::itemsOf;
using testing::ElementsAre;
using testing::IsEmpty;

class PlayCounts : public testing::Test, public test::SearchWindow {
 protected:
  PlayCounts() {
    showOnly({&GameFrames::Frame4});
    chooseNumber("07");
  }
  void chooseNumber(std::string_view number) {
    setCaptions(first.numbers, {number, "50", "", "", "", ""});
    setCaptions(second.numbers, {number, "50", "", "", "", ""});
    mark(first.numbers, "1");
    mark(second.numbers, "1");
    played.Command23.setCaption(number);
  }
  void countFirst() { Command21_Click(first, frames, files.folder(), boxes); }
  void countPlayed() { Command30_Click(played, frames, files.folder(), boxes); }
  void countSecond() { Command46_Click(second, first.Combo5, frames, files.folder(), boxes); }

  HavePlayedPage& first = pages.havePlayed;
  PlayedPage& played = pages.played;
  HavePlayedPlaysPage& second = pages.havePlayedPlays;
};

TEST_F(PlayCounts, TheFirstVisibleGameFrameTellsTheFile) {
  files.write(test::powerBallDraws, "PB,1,1,07,2,3,4,5,6,x\r\n");
  files.write(test::doublePlayDraws,
              "DP,1,1,2,07,4,5,6,9,x,x,1,2,3,4,07,8,x\r\nDP,1,2,2,07,4,5,6,07,x,x,1,2,3,4,5,6,x\r\n");
  files.write(test::megaMillionsDraws, "MM,1,1,07,2,3,4,5,6,x\r\n");
  files.write(test::hoosierDraws, "IN,1,1,07,2,3,4,5,6,x\r\n");
  const std::string pb = " PB-1-1    07 2 3 4 5   6";
  const std::string dp = " DP-1-1    1 2 3 4 07   8";
  const std::string mm = " MM-1-1    07 2 3 4 5   6";
  const std::string in = " IN-1-1    07 2 3 4 5   6";
  struct Row {
    const char* name;
    std::initializer_list<Frame GameFrames::*> visible;
    std::string draws;
    std::string plays;
  };
  const Row rows[] = {
      {"none", {}, "", ""},
      {"PowerBall", {&GameFrames::Frame4}, pb, pb},
      {"state game", {&GameFrames::Frame5}, "", in},
      {"Double Play", {&GameFrames::Frame6}, dp, ""},
      {"Mega Millions", {&GameFrames::Frame11}, mm, mm},
      {"all", {&GameFrames::Frame4, &GameFrames::Frame5, &GameFrames::Frame6, &GameFrames::Frame11}, pb, pb},
      {"all but PowerBall", {&GameFrames::Frame11, &GameFrames::Frame6, &GameFrames::Frame5}, dp, in},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    showOnly(row.visible);
    chooseNumber("07");
    countFirst();
    countPlayed();
    EXPECT_EQ(first.Combo5.text(), row.draws);
    EXPECT_EQ(played.Combo6.text(), row.draws);
    EXPECT_EQ(itemsOf(first.Combo5), itemsOf(played.Combo6));
    EXPECT_EQ(played.Combo6.items().size(), row.draws.empty() ? 0U : 1U);
    countSecond();
    EXPECT_EQ(second.Combo9.text(), row.plays);
  }
  EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(PlayCounts, AnExtraBallTakesTheDropDownsTextEachTime) {
  files.write(test::powerBallDraws,
              test::records({"03,07,2026,07,12,13,14,15,16,X", "03,04,2026,12,13,14,15,07,16,X",
                             "02,28,2026,10,12,13,14,15,07,X", "02,25,2026,10,12,13,14,15,16,X",
                             "02,21,2026,10,12,13,07,15,07,X", "02,18,2026,10,11,07,14,15,16,X"}));
  const auto lines = ElementsAre(" 03-07-2026    07 12 13 14 15   16", " 03-04-2026    12 13 14 15 07   16",
                                 " 02-28-2026    10 12 13 14 15   07", " 02-21-2026    10 12 13 07 15   07",
                                 " 02-18-2026    10 11 07 14 15   16");
  const std::string text = " 02-21-2026    10 12 13 07 15   07";
  first.List6.add("old");
  countFirst();
  EXPECT_THAT(itemsOf(first.Combo5), lines);
  EXPECT_EQ(first.Combo5.text(), text);
  EXPECT_EQ(first.Label23.caption(), " 07  Have Played:  5   Times");
  EXPECT_THAT(itemsOf(first.List6), IsEmpty());
  countPlayed();
  EXPECT_THAT(itemsOf(played.Combo6), lines);
  EXPECT_THAT(itemsOf(played.List7), lines);
  EXPECT_THAT(played.List7.emphasis(), ElementsAre("07"));
  EXPECT_EQ(played.Combo6.text(), text);
  EXPECT_EQ(played.Label24.caption(), "07 Played: 5 Times");
  countSecond();
  EXPECT_THAT(itemsOf(second.Combo9), lines);
  EXPECT_EQ(second.Combo9.text(), text);
  EXPECT_EQ(second.Label26.caption(), " 07  Have Played:  5   Times");
  EXPECT_THAT(itemsOf(first.Combo5), IsEmpty()) << "the second count empties the first one's drop-down";
}

TEST_F(PlayCounts, TheFirstMarkedNumberIsCountedAndOnlyTheFirstPanelIsReset) {
  files.write(test::powerBallDraws, test::records({"03,07,2026,50,12,13,14,15,16,X"}));
  setCaptions(first.numbers, {"07", "50", "12", "", "", ""});
  setCaptions(second.numbers, {"07", "50", "12", "", "", ""});
  mark(first.numbers, "32");
  mark(second.numbers, "32");
  countFirst();
  countSecond();
  EXPECT_EQ(first.Label23.caption() + second.Label26.caption(),
            " 50  Have Played:  1   Times 50  Have Played:  1   Times");
  EXPECT_FALSE(first.Command21.enabled());
  EXPECT_EQ(firstMarkedNumber(first.numbers), "");
  EXPECT_EQ(firstMarkedNumber(second.numbers), "50");
  EXPECT_TRUE(second.Command46.enabled() && played.Command30.enabled());
  havePlayedNumber_Click(first, first.numbers[5]);
  EXPECT_TRUE(first.Command21.enabled() && isMarked(first.numbers[5]));
}

TEST_F(PlayCounts, WithNothingFoundTheFirstPanelAsksAndTheOthersTellZero) {
  files.write(test::powerBallDraws, test::records({"03,07,2026,01,12,13,14,15,16,X"}));
  first.Label23.setCaption("old");
  countFirst();
  EXPECT_EQ(boxes.only(), "PowerBall Lotto Search.|One Number Must Be Selected...");
  EXPECT_EQ(boxes.shown[0].icon, MessageBox::Icon::none);
  EXPECT_EQ(first.Label23.caption(), "old");
  EXPECT_EQ(firstMarkedNumber(first.numbers), "07");
  unmarkAll(first.numbers);
  countFirst();
  EXPECT_EQ(boxes.shown.size(), 2U);
  EXPECT_TRUE(first.Command21.enabled());
  countPlayed();
  countSecond();
  EXPECT_EQ(played.Label24.caption() + second.Label26.caption(),
            "07 Played: 0 Times 07  Have Played:  0   Times");
  EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST_F(PlayCounts, AMissingFileIsNamedAndARecordCutOffIsError62) {
  for (Label* label : {&first.Label23, &played.Label24, &second.Label26}) label->setCaption("old");
  const std::function<void()> counts[] = {[&] { countFirst(); }, [&] { countPlayed(); },
                                          [&] { countSecond(); }};
  for (const auto& count : counts) {
    boxes.shown.clear();
    count();
    EXPECT_THAT(boxes.only(), testing::HasSubstr(test::powerBallDraws));
  }
  EXPECT_EQ(first.Label23.caption() + played.Label24.caption() + second.Label26.caption(), "oldoldold");
  EXPECT_EQ(firstMarkedNumber(first.numbers), "07");
  EXPECT_TRUE(first.Command21.enabled());

  showOnly({&GameFrames::Frame6});
  files.write(test::doublePlayDraws, "03,07,2026,11,12,13,14,15,16,2\r\n");
  EXPECT_THROW(countFirst(), RuntimeError);
}

}  // namespace
}  // namespace tallywick
