// How the search tabs' pickers are filled, and how their lines come back as numbers on the buttons.
#include "core/runtime_error.h"
#include "search_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::itemsOf;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

class Pickers : public testing::Test, public test::SearchWindow {};

TEST_F(Pickers, EveryDrawIsAnItemAndTheFirstOneTheText) {
  files.write(test::megaMillionsDraws,
              test::records({"03,06,2026,11,12,13,14,15,16,3", "03,03,2026,21,22,23,24,25,06,10"}));
  const std::string newest = " 03-06-2026    11 12 13 14 15   16";
  const auto lines = ElementsAre(newest, " 03-03-2026    21 22 23 24 25   06");
  for (int times = 0; times < 2; ++times) fillDrawPickers(pages, files.folder(), megaMillions);
  for (const ComboBox* picker : {&pages.havePlayed.Combo2, &pages.twoThree.Combo4}) {
    EXPECT_EQ(picker->text(), newest);
    EXPECT_THAT(itemsOf(*picker), lines);
  }
  EXPECT_EQ(pages.played.Combo3.text(), " 03-06-2026    3");
  EXPECT_THAT(itemsOf(pages.played.Combo3), ElementsAre(" 03-06-2026    3", " 03-03-2026    10"));
  for (const ListBox* list :
       {&pages.havePlayed.List6, &pages.played.List7, &pages.twoThree.List8, &pages.havePlayedPlays.List9}) {
    EXPECT_THAT(itemsOf(*list), lines);
  }
}

TEST_F(Pickers, AMissingFileIsAnErrorAndAShortOneFillsWhatItHolds) {
  EXPECT_THROW(fillDrawPickers(pages, files.folder(), powerBall), RuntimeError);
  files.write(test::powerBallDraws, "03,06,2026,11,12,13,14,15,16,3\r\n03,03\r\n");
  EXPECT_THROW(fillDrawPickers(pages, files.folder(), powerBall), RuntimeError);
  EXPECT_EQ(pages.twoThree.Combo4.items().size(), 1U);
}

TEST_F(Pickers, PlayedPlaysAreOfferedAsDrawLines) {
  files.write(R"(QzrNumbers\QZR6PWR\QZR6PWR2.Ply)",
              test::records({"11-11-1111,00,00,00,00,00,00,0000000", "03-07-2026,01,12,23,34,45,06,1111100",
                             "03-04-2026,02,12,23,34,45,07,1111100"}));
  ComboBox& picker = pages.havePlayedPlays.Combo8;
  fillPlayPicker(pages, files.folder(), powerBall);
  EXPECT_EQ(picker.text(), " 03-07-2026    01 12 23 34 45   06");
  EXPECT_THAT(itemsOf(picker), ElementsAre(picker.text(), " 03-04-2026    02 12 23 34 45   07"));
  Command45_Click(pages.havePlayedPlays, frames);
  fillPlayPicker(pages, files.folder(), megaMillions);
  EXPECT_EQ(picker.text(), "");
  EXPECT_THAT(itemsOf(picker), IsEmpty());
}

TEST_F(Pickers, DoublePlayListsHoldTheSecondDraw) {
  files.write(test::doublePlayDraws, test::records({"03,07,2026,11,12,13,14,15,16,2,A,21,22,23,24,25,26,B"}));
  pages.havePlayedPlays.List9.add("old");
  fillDoublePlayLists(pages, files.folder());
  for (const ListBox* list : {&pages.havePlayed.List6, &pages.played.List7, &pages.twoThree.List8}) {
    EXPECT_THAT(itemsOf(*list), ElementsAre(" 03-07-2026    21 22 23 24 25   26"));
  }
  EXPECT_THAT(itemsOf(pages.havePlayedPlays.List9), ElementsAre("old"));
}

TEST_F(Pickers, DisplayUnmarksAndCutsTheLineByPosition) {
  const std::string line = " 03-06-2026    11 12 13 14 15 X 16";
  showOnly({&GameFrames::Frame4});
  pages.twoThree.Combo4.setText(line);
  pages.havePlayed.Combo2.setText(line);
  pages.havePlayedPlays.Combo8.setText(line);
  const auto rows = {&pages.twoThree.numbers, &pages.havePlayed.numbers, &pages.havePlayedPlays.numbers};
  const auto display = [&] {
    for (ButtonRow<6>* row : rows) mark(*row, "246");
    Command37_Click(pages.twoThree);
    Command22_Click(pages.havePlayed, frames);
    Command45_Click(pages.havePlayedPlays, frames);
    for (ButtonRow<6>* row : rows) EXPECT_EQ(firstMarkedNumber(*row), "");
  };
  display();
  for (ButtonRow<6>* row : rows)
    EXPECT_THAT(captionsOf(*row), ElementsAre("11", "12", "13", "14", "15", "16"));
  showOnly({&GameFrames::Frame5});
  display();
  EXPECT_EQ(pages.twoThree.numbers[5].caption(), "16");
  EXPECT_EQ(pages.havePlayed.numbers[5].caption() + pages.havePlayedPlays.numbers[5].caption(), "X X ");
  for (ComboBox* source : {&pages.twoThree.Combo4, &pages.havePlayed.Combo2, &pages.havePlayedPlays.Combo8})
    source->clear();
  display();
  for (ButtonRow<6>* row : rows) EXPECT_THAT(captionsOf(*row), Each(""));
}

TEST_F(Pickers, ThePlayedNumberComesFromTheDateLineWhileAGameIsShown) {
  pages.played.Combo3.setText(" 03-06-2026    3 ");
  for (Frame GameFrames::*frame : {&GameFrames::Frame4, &GameFrames::Frame6, &GameFrames::Frame11}) {
    showOnly({frame});
    pages.played.Command23.setCaption("old");
    Command29_Click(pages.played, frames);
    EXPECT_EQ(pages.played.Command23.caption(), "3");
  }
  showOnly({&GameFrames::Frame5});
  Command29_Click(pages.played, frames);
  EXPECT_EQ(pages.played.Command23.caption(), "");
}

TEST_F(Pickers, TheNewestDrawGoesOnTheButtonsOfThreePanels) {
  setSearchCaptions(pages, {"11", "12", "13", "14", "15", "06"});
  EXPECT_THAT(captionsOf(pages.twoThree.numbers), ElementsAre("11", "12", "13", "14", "15", "06"));
  EXPECT_EQ(captionsOf(pages.havePlayed.numbers), captionsOf(pages.twoThree.numbers));
  EXPECT_EQ(pages.played.Command23.caption(), "11");
  EXPECT_THAT(captionsOf(pages.havePlayedPlays.numbers), Each(""));
}

TEST_F(Pickers, APressMarksAndUnmarksAndLeavesOtherColours) {
  Button& number = pages.twoThree.numbers[0];
  toggleMark(number);
  EXPECT_TRUE(isMarked(number));
  toggleMark(number);
  EXPECT_EQ(number.backColor(), colors::buttonFace);
  number.setBackColor(colors::yellow);
  toggleMark(number);
  EXPECT_EQ(number.backColor(), colors::yellow);
}

}  // namespace
}  // namespace tallywick
