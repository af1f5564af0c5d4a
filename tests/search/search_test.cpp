// SPDX-License-Identifier: GPL-3.0-or-later
// What scripts cannot reach of the searches and counts: every set of marks in every member of the family, the
// leftover state game, files that end inside a record, and what a window emphasises and says.
#include "core/runtime_error.h"
#include "core/text.h"
#include "search/double_play_draws.h"
#include "search/marks.h"
#include "search/search_hints.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::itemsOf;
using testing::ElementsAre;

constexpr std::string_view powerBallDraws = R"(QzrNumbers\QZR6PWR\QZRNUM62.Dat)";
constexpr std::string_view doublePlayDraws = R"(QzrNumbers\QZR6PWR\QZRNUM72.Dat)";
constexpr std::string_view megaMillionsDraws = R"(QzrNumbers\QZR6MEG\QZRNUM62.Dat)";
constexpr std::string_view hoosierDraws = R"(QzrNumbers\Qzr6Ind\QZRNUM62.Dat)";

struct SearchWindow {
  SearchWindow() {
    for (Frame* frame : {&frames.Frame4, &frames.Frame5, &frames.Frame6, &frames.Frame11}) frame->hide();
  }
  /// Marks exactly these positions, from 1.
  static void mark(ButtonRow<6>& row, std::string_view positions) {
    unmarkAll(row);
    for (char position : positions) toggleMark(row[static_cast<std::size_t>(position - '1')]);
  }

  test::ScratchFolder files;
  Form form{"Form1"};
  GameFrames frames{form};
  SearchPages pages{form};
  test::RecordingBoxes boxes;
};

struct Member {
  const char* name;
  void (*search)(TwoThreePage&, const DataFolder&, MessageBoxes&);
  std::string_view file;
  const char* noneMarked;
  const char* tooMany;
  bool hasButton = true;
};

const Member members[] = {
    {"Command38", Command38_Click, powerBallDraws,
     "PowerBall Lotto Search.|Minimum of Two Number Must Be Selected...",
     "PowerBall Lottery Game|Error !!!  Search for Two or Three Numbers,\r\nPlease Retry."},
    {"Command25", Command25_Click, megaMillionsDraws,
     "Mega Million Lottery Game.|Minimum of Two Number Must Be Selected...",
     "Mega Million Lottery Game.|Error !!!  Search for Two or Three Numbers,\r\nPlease Retry."},
    {"Command26", Command26_Click, doublePlayDraws,
     "PowerBall Double Play Lotto Search.|Minimum of Two Number Must Be Selected...",
     "PowerBall Double Play Lotto Search.|Error !!!  Search for Two or Three Numbers,\r\nPlease Retry."},
    {"SearchOneTwoThreeMega", SearchOneTwoThreeMega, megaMillionsDraws, "0 boxes",
     "PowerBall Lottery Game|Error !!!  Search for One, Two or Three Numbers,\r\nPlease Retry.", false},
    {"SearchOneTwoThreeHoosier", SearchOneTwoThreeHoosier, hoosierDraws, "0 boxes",
     "Hoosier Lottery Game|Error !!!  Search for One, Two or Three Numbers,\r\nPlease Retry.", false},
};

class TwoThreeSearch : public testing::TestWithParam<Member>, public SearchWindow {
 protected:
  void search(const std::string& marks) {
    for (std::size_t i = 0; i < 6; ++i) page.numbers[i].setCaption("1" + std::to_string(i + 1));
    mark(page.numbers, marks);
    boxes.shown.clear();
    page.List8.clear();
    page.List8.add("old");
    page.Label25.setCaption("old");
    GetParam().search(page, files.folder(), boxes);
  }

  TwoThreePage& page = pages.twoThree;
};

INSTANTIATE_TEST_SUITE_P(Members, TwoThreeSearch, testing::ValuesIn(members),
                         [](const auto& member) { return std::string(member.param.name); });

// One draw contains all six numbers; another one only those marked, the last of them as extra ball.
TEST_P(TwoThreeSearch, TakesEverySetOfMarks) {
  for (unsigned set = 0; set < 64; ++set) {
    std::string marks;
    for (unsigned bit = 0; bit < 6; ++bit) {
      if ((set >> bit & 1U) != 0) marks += static_cast<char>('1' + bit);
    }
    SCOPED_TRACE(marks);
    const std::string third = marks.size() == 3 ? "1" + marks.substr(1, 1) : "43";
    const std::string second = "1" + marks.substr(0, 1) + "," + third + ",40,41,42,1" +
                               (marks.empty() ? std::string() : marks.substr(marks.size() - 1));
    files.write(GetParam().file,
                test::records({"03,07,2026,11,12,13,14,15,16,X1", "03,04,2026," + second + ",X2",
                               "03,01,2026,11,50,51,52,53,54,X3"}));
    search(marks);
    if (marks.size() < 2 || marks.size() > 3) {
      EXPECT_EQ(boxes.only(), marks.empty()      ? GetParam().noneMarked
                              : marks.size() > 1 ? GetParam().tooMany
                                                 : "0 boxes");
      EXPECT_EQ(page.Label25.caption() + page.Combo7.text(), "old");
      EXPECT_THAT(itemsOf(page.List8), ElementsAre("old"));
      continue;
    }
    const bool ignoresExtra = marks == "123" || marks == "124";
    const std::string extraLine =
        std::string(" 03-04-2026    1") + marks[0] + " " + third + " 40 41 42   1" + marks.back();
    const std::string allLine = " 03-07-2026    11 12 13 14 15   16";
    const std::string tail = !GetParam().hasButton || marks == "126" ? "     X2"
                             : marks == "13"                         ? "     "
                                                                     : "";
    std::vector<std::string> plain = {allLine, extraLine};
    std::vector<std::string> dropped = {allLine + (GetParam().hasButton ? "" : "     X1"), extraLine + tail};
    if (ignoresExtra) plain.pop_back(), dropped.pop_back();
    const bool neverCounts = GetParam().search == Command26_Click && marks == "236";

    EXPECT_EQ(itemsOf(page.Combo7), dropped);
    EXPECT_EQ(page.Combo7.text(), dropped[neverCounts ? 1 : 0]);
    EXPECT_EQ(itemsOf(page.List8), GetParam().hasButton ? plain : std::vector<std::string>{"old"});
    const std::string count = neverCounts ? "0" : std::to_string(plain.size());
    const bool isPair = marks.size() == 2 || marks == "245";
    std::string tally = std::string(" 1") + marks[0] + " && 1" + marks[1];
    tally += isPair ? "            " : std::string(" && 1") + marks[2] + "     ";
    EXPECT_EQ(page.Label25.caption(), tally + count + "  Times.");
  }
}

TEST_P(TwoThreeSearch, ARecordCutOffIsError62ExceptInTens) {
  files.write(GetParam().file, "03,07,2026,11,12,13,14,15,16,X1\r\n03,04,2026,11,12,13\r\n");
  if (GetParam().search == Command26_Click) {
    search("12");
    EXPECT_EQ(page.Label25.caption(), " 11 && 12            1  Times.");
    EXPECT_THAT(page.List8.emphasis(), ElementsAre("11", "12"));
  } else {
    EXPECT_THROW(search("12"), RuntimeError);
  }
}

class OneNumber : public testing::Test, public SearchWindow {
 protected:
  /// Runs the three counts; what their drop-downs show then.
  std::string count() {
    for (ButtonRow<6>* row : {&pages.havePlayed.numbers, &pages.havePlayedPlays.numbers}) {
      (*row)[0].setCaption("07");
      mark(*row, "1");
    }
    pages.played.Command23.setCaption("07");
    Command21_Click(pages.havePlayed, frames, files.folder(), boxes);
    const std::string first = pages.havePlayed.Combo5.text();
    Command30_Click(pages.played, frames, files.folder(), boxes);
    Command46_Click(pages.havePlayedPlays, pages.havePlayed.Combo5, frames, files.folder(), boxes);
    return first + "|" + pages.played.Combo6.text() + "|" + pages.havePlayedPlays.Combo9.text();
  }
};

TEST_F(OneNumber, IsCountedInTheFileOfTheFirstVisibleFrame) {
  files.write(powerBallDraws, "PB,1,1,07,2,3,4,5,6,x\r\n");
  files.write(doublePlayDraws, "DP,1,1,2,07,4,5,6,9,x,x,1,2,3,4,07,8,x\r\n");
  files.write(megaMillionsDraws, "MM,1,1,07,2,3,4,5,6,x\r\n");
  files.write(hoosierDraws, "IN,1,1,07,2,3,4,5,6,x\r\n");
  const std::string pb = " PB-1-1    07 2 3 4 5   6";
  const std::string dp = " DP-1-1    1 2 3 4 07   8";
  const std::string mm = " MM-1-1    07 2 3 4 5   6";
  EXPECT_EQ(count(), "||") << "no game is shown";
  frames.Frame11.show();
  EXPECT_EQ(count(), mm + "|" + mm + "|" + mm);
  frames.Frame6.show();
  EXPECT_EQ(count(), dp + "|" + dp + "|" + mm);
  frames.Frame5.show();
  EXPECT_EQ(count(), dp + "|" + dp + "| IN-1-1    07 2 3 4 5   6");
  frames.Frame4.show();
  EXPECT_EQ(count(), pb + "|" + pb + "|" + pb);
  EXPECT_THAT(pages.played.List7.emphasis(), ElementsAre("07"));
  files.write(powerBallDraws, "03,07,2026,11,12,13,14,15,16\r\n");
  EXPECT_THROW(count(), RuntimeError);
}

TEST_F(OneNumber, OfTheStateGameIsTwoPlacesFurtherLeft) {
  for (ComboBox* source : {&pages.twoThree.Combo4, &pages.havePlayed.Combo2, &pages.havePlayedPlays.Combo8})
    source->setText(" 03-06-2026    11 12 13 14 15 X 16");
  pages.played.Command23.setCaption("old");
  frames.Frame5.show();
  Command37_Click(pages.twoThree);
  Command22_Click(pages.havePlayed, frames);
  Command45_Click(pages.havePlayedPlays, frames);
  Command29_Click(pages.played, frames);
  EXPECT_EQ(pages.twoThree.numbers[5].caption() + pages.havePlayed.numbers[5].caption() +
                pages.havePlayedPlays.numbers[5].caption() + pages.played.Command23.caption(),
            "16X X ");
}

class SearchHints : public testing::Test, public SearchWindow {
 protected:
  SearchHints() {
    files.write(std::string(powerBallDraws), test::records({"11,18,2026,07,17,20,41,55,09,2"}));
    page.Command37.onClick = [this] { Command37_Click(page); };
    page.Command38.onClick = [this] { Command38_Click(page, files.folder(), boxes); };
    for (Button& number : page.numbers) number.onClick = [&number] { toggleMark(number); };
    takeTypedNumbers(page.Command37, page.Combo4, balls(), 3);
    memory.watch(page.Command38, [this] { return searchedNow(page, "PowerBall"); });
  }

  std::vector<Button*> balls() {
    std::vector<Button*> all;
    for (Button& number : page.numbers) all.push_back(&number);
    return all;
  }

  TwoThreePage& page = pages.twoThree;
  SearchMemory memory{page.Combo7.items(), &page.List8.items()};
};

TEST_F(SearchHints, NumbersThatAreTypedStandForADraw) {
  const std::string blanks(15, ' ');
  const std::pair<const char*, std::optional<std::string>> cases[] = {
      {"7 17 20", blanks + "07 17 20"},
      {" 07,17 ", blanks + "07 17"},
      {"1 2 3 4 5 6", blanks + "01 02 03 04 05   06"},
      {"7 17 + 20", blanks + "07 17" + std::string(12, ' ') + "20"},
      {"", std::nullopt},
      {"0 7", std::nullopt},
      {"1 2 3 4 5 6 7", std::nullopt},
      {"7 + 8 9", std::nullopt},
      {" 11-18-2026    07 17 20 41 55   09", std::nullopt},
  };
  for (const auto& [typed, line] : cases) EXPECT_EQ(typedDrawLine(typed), line) << typed;
  page.Combo4.setText("7 17 + 20");
  EXPECT_EQ(typedHint(page.Command37, page.Combo4, balls()),
            "Typed, and not on the balls yet: 07, 17 and 20. Press Display.");
  click(page.Command37);
  EXPECT_EQ(typedHint(page.Command37, page.Combo4, balls()), "");
  EXPECT_EQ(page.numbers[1].caption() + page.numbers[3].caption(), "17  ");
  EXPECT_EQ(page.Combo4.text(), "7 17 + 20");
  EXPECT_TRUE(isMarked(page.numbers[0]) && isMarked(page.numbers[5]));
  page.Combo4.setText("7 17 20 30");
  click(page.Command37);
  EXPECT_FALSE(isMarked(page.numbers[0]));
}

TEST_F(SearchHints, SayWhatAPressWillSearch) {
  const auto said = [](const SearchHint& hint) {
    return join(hint.ready ? "ready" : "idle", hint.surprises ? ", other: " : ": ", hint.text);
  };
  page.Combo4.setText("7 17 20 41 55 9");
  const std::pair<const char*, const char*> cases[] = {
      {"2", "idle: One ball is marked: mark one or two more. With one alone nothing is searched."},
      {"16", "ready: Search looks for 07 and 09 among all six balls of a draw."},
      {"123",
       "ready, other: Search looks for 07, 17 and 20 among the five white balls of a draw, not in its extra "
       "ball."},
      {"245", "ready, other: Search looks for 17 and 41 only, among all six balls of a draw."},
      {"1234", "idle: Four balls are marked: two or three can be searched."},
  };
  for (const auto& [marks, text] : cases) {
    click(page.Command37);
    mark(page.numbers, marks);
    EXPECT_EQ(said(searchHint(page)), text);
  }
  frames.Frame6.show();
  EXPECT_EQ(said(searchHint(pages.havePlayedPlays, frames)),
            "idle: Nothing is counted for the game on show: press PowerBall or Mega Millions.");
  const auto played = [&](const char* number) {
    pages.played.Command23.setCaption(number);
    const std::string hint = said(searchHint(pages.played, frames));
    return hint.substr(0, hint.find(" Display takes"));
  };
  EXPECT_EQ(played(""), "idle: The ball has no number.");
  EXPECT_EQ(played("02"), "ready: Search counts the Double Play draws with 02.");
  EXPECT_EQ(played("2"),
            "idle, other: Search counts the Double Play draws with 2; draws write it as 02, so it finds "
            "none: type 02 and press Display.");
}

TEST_F(SearchHints, SayWhoseResultIsShown) {
  page.Combo4.setText("7 17 20");
  click(page.Command37);
  mark(page.numbers, "12");
  EXPECT_EQ(memory.hint(searchedNow(page, {})), "");
  click(page.Command38);
  EXPECT_EQ(memory.hint(searchedNow(page, {})), "Shown: the PowerBall draws with 07 and 17.");
  EXPECT_EQ(memory.foundText(), "1 PowerBall draw with 07 and 17 was found; the list below has it.");
  EXPECT_TRUE(memory.isListed());
  mark(page.numbers, "13");
  EXPECT_EQ(memory.hint(searchedNow(page, "Mega Millions")),
            "Still shown: the PowerBall draws with 07 and 17, not what is marked now, not the game on show "
            "(Mega Millions).");
  memory.drawsChanged();
  EXPECT_EQ(
      memory.hint(searchedNow(page, {})),
      "Still shown: the PowerBall draws with 07 and 17, found before the draws changed. Search again for "
      "all of them.");
  page.List8.add("a draw of another game");
  EXPECT_FALSE(memory.isListed());
  page.Combo7.clear();
  EXPECT_EQ(memory.hint(searchedNow(page, {})), "");
}

// The records have 07 and 17 in main draws, in parts of two records and in Double Play draws.
TEST_F(SearchHints, DoublePlayDrawsAreCountedTruly) {
  std::string records;
  std::vector<std::string> expected;
  for (int i = 0; i < 300; ++i) {
    const std::string date = join("03,", twoDigits(1 + i % 28), ",", std::to_string(2300 - i));
    std::array<std::string, 6> balls = {"01", "02", "03", "04", "05", "06"};
    if (i % 5 == 0) balls[static_cast<std::size_t>(i / 5 % 6)] = "07";
    if (i % 7 == 0) balls[static_cast<std::size_t>(i / 7 % 6)] = "17";
    const bool isBlank = i % 11 == 0;
    std::string record = join(date, i % 3 == 0 ? ",07,17,20,41,55,09,X,Y" : ",01,02,03,04,05,07,17,Y");
    for (const std::string& ball : balls) record += join(",", isBlank ? " " : ball);
    records += record + ",Z\r\n";
    const auto has = [&](const char* number) { return !isBlank && std::ranges::count(balls, number) > 0; };
    if (has("07") && has("17")) expected.push_back(join("-", std::to_string(2300 - i), " "));
  }
  ASSERT_GT(expected.size(), 3U);
  files.write(doublePlayDraws, records + "03,07,2000,07,17");
  page.Command26.onClick = [this] { Command26_Click(page, files.folder(), boxes); };
  memory.watch(
      page.Command26, [this] { return searchedNow(page, "Double Play"); },
      [this](TextLines& lines) { return listDoublePlayDraws(page.numbers, files.folder(), lines); });
  page.Combo4.setText("7 17");
  click(page.Command37);
  click(page.Command26);
  const TextLines& found = memory.foundElsewhere();
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i)
    EXPECT_THAT(std::string(found[i]), testing::HasSubstr(expected[i]));
  EXPECT_NE(page.List8.items().size(), found.size());
  EXPECT_EQ(
      memory.foundText(),
      join(std::to_string(expected.size()),
           " Double Play draws have 07 and 17: the list on the left has them all. The count above, the "
           "line Draws found and the last list are what old record books expect: they mix in other draws."));
  click(page.Command38);
  EXPECT_FALSE(memory.isMixed() || memory.isFoundElsewhere());
}

}  // namespace
}  // namespace tallywick
