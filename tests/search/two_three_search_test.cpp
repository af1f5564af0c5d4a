// The five members of the two/three-number search: every set of marks, the slips that are kept, files that
// cannot be read.
#include "core/runtime_error.h"
#include "search_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::itemsOf;
using testing::ElementsAre;
using testing::IsEmpty;

struct Member {
  const char* name;
  void (*search)(TwoThreePage&, const DataFolder&, MessageBoxes&);
  std::string_view file;
  const char* noneMarked;
  const char* tooMany;
  bool hasButton = true;
};

const Member members[] = {
    {"Command38", Command38_Click, test::powerBallDraws,
     "PowerBall Lotto Search.|Minimum of Two Number Must Be Selected...",
     "PowerBall Lottery Game|Error !!!  Search for Two or Three Numbers,\r\nPlease Retry."},
    {"Command25", Command25_Click, test::megaMillionsDraws,
     "Mega Million Lottery Game.|Minimum of Two Number Must Be Selected...",
     "Mega Million Lottery Game.|Error !!!  Search for Two or Three Numbers,\r\nPlease Retry."},
    {"Command26", Command26_Click, test::doublePlayDraws,
     "PowerBall Double Play Lotto Search.|Minimum of Two Number Must Be Selected...",
     "PowerBall Double Play Lotto Search.|Error !!!  Search for Two or Three Numbers,\r\nPlease Retry."},
    {"SearchOneTwoThreeMega", SearchOneTwoThreeMega, test::megaMillionsDraws, "0 boxes",
     "PowerBall Lottery Game|Error !!!  Search for One, Two or Three Numbers,\r\nPlease Retry.", false},
    {"SearchOneTwoThreeHoosier", SearchOneTwoThreeHoosier, test::hoosierDraws, "0 boxes",
     "Hoosier Lottery Game|Error !!!  Search for One, Two or Three Numbers,\r\nPlease Retry.", false},
};

class TwoThreeSearch : public testing::TestWithParam<Member>, public test::SearchWindow {
 protected:
  TwoThreeSearch() {
    setCaptions(page.numbers, {"11", "12", "13", "14", "15", "16"});
    fillWithOldResults();
  }
  void fillWithOldResults() {
    boxes.shown.clear();
    page.Combo7.setText("old");
    page.Combo7.add("old");
    page.List8.clear();
    page.List8.add("old");
    page.Label25.setCaption("old");
  }
  void search() { GetParam().search(page, files.folder(), boxes); }
  void expectOnlyCombo7Emptied() {
    EXPECT_THAT(page.Combo7.text() + "|" + page.Label25.caption(), "|old");
    EXPECT_THAT(itemsOf(page.Combo7), IsEmpty());
    EXPECT_THAT(itemsOf(page.List8), ElementsAre("old"));
  }

  TwoThreePage& page = pages.twoThree;
};

INSTANTIATE_TEST_SUITE_P(Members, TwoThreeSearch, testing::ValuesIn(members),
                         [](const auto& member) { return std::string(member.param.name); });

std::vector<std::string> marksOfSize(std::initializer_list<int> sizes) {
  std::vector<std::string> all;
  for (unsigned set = 0; set < 64; ++set) {
    std::string marks;
    for (unsigned bit = 0; bit < 6; ++bit) {
      if ((set >> bit & 1U) != 0) marks += static_cast<char>('1' + bit);
    }
    for (int size : sizes) {
      if (marks.size() == static_cast<std::size_t>(size)) all.push_back(marks);
    }
  }
  return all;
}

// One draw holds all six numbers; another one only those marked, the last of them as extra ball.
TEST_P(TwoThreeSearch, ListsTheDrawsOfEveryPairAndTriple) {
  for (const std::string& marks : marksOfSize({2, 3})) {
    SCOPED_TRACE(marks);
    const std::string third = marks.size() == 3 ? "1" + marks.substr(1, 1) : "43";
    const std::string second =
        "03,04,2026,1" + marks.substr(0, 1) + "," + third + ",40,41,42,1" + marks.back() + ",X2";
    files.write(GetParam().file, test::records({"03,07,2026,11,12,13,14,15,16,X1", second,
                                                "03,01,2026,11,50,51,52,53,54,X3"}));
    mark(page.numbers, marks);
    fillWithOldResults();
    search();

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
    EXPECT_THAT(boxes.shown, IsEmpty());
  }
}

TEST_P(TwoThreeSearch, OtherCountsOfMarksSearchNothing) {
  files.write(GetParam().file, test::records({"03,07,2026,11,12,13,14,15,16,X1"}));
  for (const std::string& marks : marksOfSize({0, 1, 4, 5, 6})) {
    SCOPED_TRACE(marks);
    mark(page.numbers, marks);
    fillWithOldResults();
    search();
    expectOnlyCombo7Emptied();
    const std::string box = marks.empty()      ? GetParam().noneMarked
                            : marks.size() > 1 ? GetParam().tooMany
                                               : "0 boxes";
    EXPECT_EQ(boxes.only(), box);
    const MessageBox::Icon icon = marks.empty() ? MessageBox::Icon::none : MessageBox::Icon::exclamation;
    for (const MessageBox& shown : boxes.shown) EXPECT_EQ(shown.icon, icon);
  }
}

TEST_P(TwoThreeSearch, AMissingFileIsNamedBeforeTheMarksAreCounted) {
  for (const std::string marks : {"", "12", "1234"}) {
    mark(page.numbers, marks);
    fillWithOldResults();
    search();
    expectOnlyCombo7Emptied();
    EXPECT_THAT(boxes.only(), testing::HasSubstr("Tallywick Software|The draw history file \"" +
                                                 std::string(GetParam().file)));
    EXPECT_EQ(boxes.shown[0].icon, MessageBox::Icon::exclamation);
  }
}

TEST_P(TwoThreeSearch, ARecordCutOffIsError62ExceptInTens) {
  files.write(GetParam().file, "03,07,2026,11,12,13,14,15,16,X1\r\n03,04,2026,11,12,13\r\n");
  mark(page.numbers, "12");
  if (GetParam().search == Command26_Click) {
    search();
    EXPECT_EQ(page.Label25.caption(), " 11 && 12            1  Times.");
  } else {
    EXPECT_THROW(search(), RuntimeError);
  }
}

class TwoThree : public testing::Test, public test::SearchWindow {
 protected:
  TwoThreePage& page = pages.twoThree;
};

TEST_F(TwoThree, DoublePlayRecordsAreReadInTensThatDriftAcrossThem) {
  files.write(test::doublePlayDraws, test::records({"03,07,2026,11,12,13,14,15,16,2,A,21,22,23,24,25,26,B",
                                                    "03,04,2026,31,32,33,34,35,36,3,C,41,42,43,44,45,46,D"}));
  setCaptions(page.numbers, {"23", "B", "2026", "16", "12", "03"});
  mark(page.numbers, "126");
  Command26_Click(page, files.folder(), boxes);
  EXPECT_THAT(itemsOf(page.List8), ElementsAre(" A-21-22    23 24 25 26 B   03"));
  EXPECT_THAT(page.List8.emphasis(), ElementsAre("23", "B", "03"));
  mark(page.numbers, "45");
  Command26_Click(page, files.folder(), boxes);
  EXPECT_THAT(itemsOf(page.List8), ElementsAre(" 03-07-2026    11 12 13 14 15   16"));
}

TEST_F(TwoThree, NumbersAreComparedAsText) {
  files.write(test::powerBallDraws,
              "03,07,2026,07,12,13,14,15,,X1\r\n03,04,2026,7,12,13,14,15,16,X2\r\n"
              "03,01,2026,007,12,13,14,15,16,X3\r\n");
  const std::pair<const char*, const char*> rows[] = {
      {"07", " 03-07-2026"}, {"7", " 03-04-2026"}, {"007", " 03-01-2026"}, {"", " 03-07-2026"}};
  mark(page.numbers, "12");
  for (const auto& [caption, date] : rows) {
    SCOPED_TRACE(caption);
    setCaptions(page.numbers, {caption, "12", "", "", "", ""});
    Command38_Click(page, files.folder(), boxes);
    ASSERT_EQ(page.List8.items().size(), 1U);
    EXPECT_EQ(page.List8.items()[0].substr(0, 11), date);
  }
}

TEST_F(TwoThree, WithoutAMatchTheListsAreEmptyAndTheTallyIsZero) {
  files.write(test::powerBallDraws, "");
  setCaptions(page.numbers, {"05", "12", "33", "", "", ""});
  mark(page.numbers, "123");
  page.List8.add("old");
  Command38_Click(page, files.folder(), boxes);
  EXPECT_TRUE(page.List8.items().empty() && page.Combo7.items().empty() && page.Combo7.text().empty());
  EXPECT_EQ(page.Label25.caption(), " 05 && 12 && 33     0  Times.");
}

}  // namespace
}  // namespace tallywick
