// The amounts of the draws: which record counts for which draw, and what is marked.
#include "core/winnings.h"

#include "core/runtime_error.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace tallywick {
namespace {

using test::records;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct Winnings : testing::Test {
  void write(std::string_view text, const GameInfo& game = powerBall) {
    folder.write(inFolder(game, game.winningsFile), text);
  }
  void list() {
    lines.clear();
    listAmounts(folder.folder(), powerBall, [&](std::string_view line) { lines.emplace_back(line); });
  }
  /// The amount and the mark of a draw, with a bar between.
  std::string amountOf(const std::string& dateKey, const GameInfo& game = powerBall) {
    AmountLookup amounts(game);
    amounts.read(folder.folder());
    const auto [text, mark] = amounts.of(dateKey);
    return std::string(text) + "|" + std::string(mark);
  }
  test::ScratchFolder folder;
  std::vector<std::string> lines;
};

TEST_F(Winnings, ListMarksACountOfOneOrMoreAndLeavesTheLastRecordOut) {
  write(records({"11,18,2026, 40 Million ,1", "11,16,2026,,0", "11,14,2026,30, 2 ", "11,11,2026,20,0.99",
                 "11,09,2026,10,-1", "11,07,2026,5,not looked at"}));
  list();
  EXPECT_THAT(lines, ElementsAre(" 11-18-2026    40 Million     * ", " 11-16-2026            ",
                                 " 11-14-2026    30     * ", " 11-11-2026    20        ",
                                 " 11-09-2026    10        "));
  write(records({"11,18,2026,40,1"}));
  list();
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(Winnings, AMarkCountThatIsNoNumberIsError13BehindTheLinesBeforeIt) {
  for (const std::string wrong : {"", "one", "1x", "nan", "inf", "0x1"}) {
    write(records({"11,18,2026,40,1", "11,16,2026,30," + wrong, "11,14,2026,20,0"}));
    try {
      list();
      ADD_FAILURE() << wrong;
    } catch (const RuntimeError& error) {
      EXPECT_TRUE(error.is(ErrorNumber::typeMismatch)) << wrong;
      EXPECT_THAT(error.where(), HasSubstr("QzrPwr.Win, record 2: mark count \"" + wrong + "\""));
    }
    EXPECT_THAT(lines, SizeIs(1)) << wrong;
  }
}

TEST_F(Winnings, TheLastOfSeveralRecordsCountsButNeverTheFilesLast) {
  const std::string file = records(
      {"11,18,2026, 99 ,0", "11,16,2026,31,0", "11,16,2026, 40 ,0", "11,14,2026,40.00,0", "11,11,2026,7,0"});
  write(file);
  EXPECT_EQ(amountOf("11182026"), "99|   ");
  EXPECT_EQ(amountOf("11162026"), "40| * ");
  EXPECT_EQ(amountOf("11142026"), "40.00|   ");
  EXPECT_EQ(amountOf("11112026"), " 99 |   ") << "the last record matches nothing";
  EXPECT_EQ(amountOf("01012026"), " 99 |   ") << "no record";
  write(file, megaMillions);
  EXPECT_EQ(amountOf("11162026", megaMillions), "40|   ");
  write(records({"11,18,2026,12,0"}), megaMillions);
  EXPECT_EQ(amountOf("11182026", megaMillions), "12| * ") << "the mark follows the amount shown";
}

TEST_F(Winnings, AnAmountReadBeforeAnErrorIsKept) {
  AmountLookup amounts(powerBall);
  EXPECT_THROW(amounts.read(folder.folder()), RuntimeError);
  EXPECT_EQ(amounts.of("11182026").text, "");
  write(records({"11,18,2026,50,0", "11,16,2026,40,0"}) + "\"11\",\"14\"\r\n");
  EXPECT_THROW(amounts.read(folder.folder()), RuntimeError);
  EXPECT_EQ(amounts.of("11162026").text, "40");
  EXPECT_EQ(amounts.of("11142026").text, "50");
}

}  // namespace
}  // namespace tallywick
