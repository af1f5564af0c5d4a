// SPDX-License-Identifier: GPL-3.0-or-later
// Draws that are typed in: what is refused, what is written, and what can be taken back.
#include "exports/typed_draws.h"

#include "core/text.h"
#include "exports/folder_merge.h"
#include "exports/history_report.h"
#include "support/record_book.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick::exports {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr Day today = dayOf(2026, 12, 31);
constexpr Day newDay = dayOf(2026, 12, 30);

TEST(TypedDraw, SaysInWhichFieldWhatIsWrong) {
  struct Case {
    Game game;
    TypedDraw typed;
    std::string error;
  };
  const Game pwr = Game::powerBall;
  const Game meg = Game::megaMillions;
  const std::string day = "12-30-2026";
  for (const auto& [game, typed, error] : std::initializer_list<Case>{
           {pwr, {"12-32-2026"}, "date: \"12-32-2026\" is not a date (MM/DD/YYYY)"},
           {pwr, {"01/02/2027"}, "date: 01-02-2027 is later than today, 12-31-2026"},
           {pwr, {"12-29-2026"}, "date: 12-29-2026 is not a draw day of PowerBall"},
           {meg, {"12-25-2009"}, "date: 12-25-2009 is not a draw day of Mega Millions"},
           {meg, {"05-14-2002"}, "date: the game was not drawn yet on 05-14-2002"},
           {pwr, {day, "1 2 3 4", "5"}, "numbers: 4 numbers instead of 5"},
           {pwr, {day, "1 2 3 4 x", "5"}, "numbers: \"x\" is not a number"},
           {pwr, {day, "1,2,3,4,4", "5"}, "numbers: the white ball 4 occurs twice"},
           {pwr, {day, "1 2 3 4 70", "5"}, "numbers: the white ball 70 is not from 1 to 69"},
           {pwr, {"09-30-2015", "1 2 3 4 60", "5"}, "numbers: the white ball 60 is not from 1 to 59"},
           {pwr, {day, "1 2 3 4 5", ""}, "extra ball: \"\" is not a number"},
           {meg, {"12-29-2026", "1 2 3 4 5", "25"}, "extra ball: the extra ball 25 is not from 1 to 24"},
           {pwr, {day, "1 2 3 4 5", "6", "11"}, "multiplier: the multiplier 11 is not from 1 to 10"},
           {pwr, {day, "1 2 3 4 5", "6", "2", "1 2 3"}, "Double Play: 3 numbers instead of 6"},
           {pwr,
            {"08-21-2021", "1 2 3 4 5", "6", "2", "1 2 3 4 5 6"},
            "Double Play: it was not drawn yet on 08-21-2021"},
           {meg, {"12-29-2026", "1 2 3 4 5", "6", "", "1 2 3 4 5 6"}, "Double Play: Mega Millions has none"},
           {pwr,
            {day, "1 2 3 4 5", "6", "", "", "\"40"},
            "amount: the amount contains a quote or a control character"},
           {pwr, {day, "1 2 3 4 5", "6", "", "", "40", "-1"}, "winning tickets: -1 is less than 0"},
           {pwr,
            {day, "1 2 3 4 5", "6", "", "", "", "1"},
            "winning tickets: there is no amount that they won"}}) {
    try {
      checkedDraw(game, typed, today);
      ADD_FAILURE() << error;
    } catch (const TypingError& found) {
      EXPECT_EQ(found.what(), error);
    }
  }
}

class TypingInAFolder : public testing::Test {
 protected:
  TypingInAFolder() { test::writeRecordBook(scratch); }

  MergeReport add(const TypedDraw& draw, KnownDraw known = KnownDraw::stays) {
    return addDraw(scratch.folder(), Game::powerBall, checkedDraw(Game::powerBall, draw, today), known);
  }
  std::string file(const char* name) const { return scratch.read(join("QzrNumbers/QZR6PWR/", name)); }
  HistoryReport report() const { return reportOf(scratch.folder(), Game::powerBall); }

  test::ScratchFolder scratch;
  const TypedDraw typed = {" 12/30/2026 ", "60, 5 14 23 41", "07", "3", "5 4 3 2 1 6", " 150 ", "1"};
};

TEST_F(TypingInAFolder, ADrawComesInEverywhereAndCanBeTakenBack) {
  const auto before = scratch.snapshot();
  EXPECT_EQ(add(typed).newDraws, 1U);
  for (const char* name : {"QZRNUM6.Dat", "QZRNUM62.Dat"}) {
    EXPECT_THAT(file(name), StartsWith(R"("12","30","2026","05","14","23","41","60","07","3")")) << name;
  }
  EXPECT_THAT(file("QZRNUM72.Dat"), HasSubstr(R"("3","DP","01","02","03","04","05","06","1")"));
  EXPECT_EQ(report().newestAmounts.front(), (AmountEntry{newDay, "150", 1}));
  EXPECT_THAT(report().typed, ElementsAre(newDay));

  const auto after = scratch.snapshot();
  add(typed);
  EXPECT_EQ(scratch.snapshot(), after) << "what is known changes nothing";
  EXPECT_THROW(removeDraw(scratch.folder(), Game::powerBall, newDay - 2), std::runtime_error)
      << "an export's";
  EXPECT_THROW(removeDraw(scratch.folder(), Game::powerBall, newDay - 1), std::runtime_error) << "none";
  EXPECT_EQ(scratch.snapshot(), after);
  removeDraw(scratch.folder(), Game::powerBall, newDay);
  for (const char* name : {"QZRNUM6.Dat", "QZRNUM62.Dat", "QZRNUM72.Dat"}) {
    EXPECT_EQ(file(name), before.at(join("QzrNumbers/QZR6PWR/", name)));
  }
  EXPECT_EQ(file("QzrPwr.Win").find("150"), std::string::npos);
  EXPECT_FALSE(scratch.exists("QzrNumbers/QZR6PWR/TALLYWICK.TYP"));
}

TEST_F(TypingInAFolder, ADrawThatIsKnownIsReplacedOnlyWhenAsked) {
  const TypedDraw other = {"12-28-2026", "60 61 62 63 64", "1", "2"};
  const TypedDraw otherSecond = {"12-28-2026", "1 2 3 4 5", "1", "2", "1 2 3 4 5 6"};
  const TypedDraw otherAmount = {"12-28-2026", "1 2 3 4 5", "1", "2", "", "41", ""};
  for (const TypedDraw& known : {other, otherSecond, otherAmount}) {
    const auto before = scratch.snapshot();
    EXPECT_THROW(add(known), DrawIsKnown);
    EXPECT_EQ(scratch.snapshot(), before);
    add(known, KnownDraw::isReplaced);
    EXPECT_NE(scratch.snapshot(), before);
    EXPECT_THAT(report().typed, IsEmpty()) << "an export has it";
  }
}

TEST_F(TypingInAFolder, AnExportWinsOverATypedDraw) {
  add(typed);
  const GameFiles files = readGameFiles(powerBall, scratch.folder().resolve(powerBall.folder));
  const Merge merge = mergeInto(Game::powerBall, {{newDay, {{1, 2, 3, 4, 5}, 6}}}, {}, files);
  EXPECT_THAT(typedDraws(withChanges(powerBall, files, merge.files)), IsEmpty());
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", test::records({"12,30,2026,01,02,03,04,05,06,1"}));
  EXPECT_THAT(report().typed, IsEmpty()) << "an update server has brought another one";
}

TEST_F(TypingInAFolder, AmountsOfTheNewestDrawsAreSetAndTakenBack) {
  const auto set = [&](Day day, const char* amount) {
    return setAmounts(scratch.folder(), Game::powerBall, {checkedTypedAmount(day, amount, "")});
  };
  EXPECT_EQ(set(dayOf(2026, 12, 27), "300").newAmounts, 1U);
  EXPECT_EQ(report().newestAmounts[1], (AmountEntry{dayOf(2026, 12, 27), "300", 0}));
  const auto before = scratch.snapshot();
  EXPECT_THROW(set(dayOf(2026, 12, 13), "300"), std::runtime_error) << "the sixteenth";
  set(dayOf(2026, 12, 27), "300");
  EXPECT_EQ(scratch.snapshot(), before);
  set(dayOf(2026, 12, 27), "");
  EXPECT_EQ(report().newestAmounts[1].amount, "");
}

TEST_F(TypingInAFolder, MadeUpDrawsAndAnEmptyFolderTakeNone) {
  for (const char* name : {"QZRNUM6.Dat", "SAMPLE.TXT"}) {
    scratch.write(join("QzrNumbers/QZR6PWR/", name), "");
    const auto before = scratch.snapshot();
    EXPECT_THROW(add(typed), std::runtime_error);
    EXPECT_EQ(scratch.snapshot(), before);
  }
}

TEST(HistoryReport, NamesWhatIsThereAndWhatIsMissing) {
  GameFiles files{};
  files.draws = test::records({"11,18,2026,01,02,03,04,05,06,2", "x,x,x,1,2,3,4,5,6,7",
                               "11,11,2026,1,2,3,4,5,6,2", "11,11,2026,1,2,3,4,5,6,2"});
  files.amounts = test::records({"11,11,2026, 40 ,2", "1,1,2001,7,0"});
  const HistoryReport report = reportOf(powerBall, files);
  EXPECT_EQ(report.draws, 2U);
  EXPECT_EQ(report.first, dayOf(2026, 11, 11));
  EXPECT_EQ(report.newest, dayOf(2026, 11, 18));
  EXPECT_THAT(report.missing, ElementsAre(dayOf(2026, 11, 14), dayOf(2026, 11, 16)));
  EXPECT_THAT(report.newestAmounts,
              ElementsAre(AmountEntry{dayOf(2026, 11, 18), ""}, AmountEntry{dayOf(2026, 11, 11), "40", 2}));
  EXPECT_FALSE(reportOf(powerBall, {}).first);
}

}  // namespace
}  // namespace tallywick::exports
