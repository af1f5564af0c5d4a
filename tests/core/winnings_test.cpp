// SPDX-License-Identifier: GPL-3.0-or-later
// The amounts of the draws where their file is not as it should be.
#include "core/winnings.h"

#include "support/raised.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

namespace tallywick {
namespace {

using test::records;
using testing::HasSubstr;
using testing::SizeIs;

struct Winnings : testing::Test {
  void write(std::string_view text) { folder.write(inFolder(powerBall, powerBall.winningsFile), text); }
  void list() {
    lines.clear();
    forEachAmount(folder.folder(), powerBall,
                  [&](const auto& record, bool) { lines.emplace_back(record[3]); });
  }
  test::ScratchFolder folder;
  std::vector<std::string> lines;
};

TEST_F(Winnings, AMarkCountThatIsNoNumberIsError13BehindTheLinesBeforeIt) {
  for (const std::string wrong : {"", "one", "1x", "nan", "inf", "0x1"}) {
    write(records({"11,18,2026,40,1", "11,16,2026,30," + wrong, "11,14,2026,20,0"}));
    const test::Raised raised = test::raisedBy([this] { list(); });
    EXPECT_EQ(raised.number, 13) << wrong;
    EXPECT_THAT(raised.where, HasSubstr("QzrPwr.Win, record 2: mark count \"" + wrong + "\""));
    EXPECT_THAT(lines, SizeIs(1)) << wrong;
  }
}

TEST_F(Winnings, AnAmountReadBeforeAnErrorIsKept) {
  AmountLookup amounts(powerBall, {"11182026", "11162026", "11142026"});
  EXPECT_THROW(amounts.read(folder.folder()), RuntimeError);
  EXPECT_EQ(amounts.of("11182026").text, "");
  write(records({"11,18,2026,50,0", "11,16,2026,40,0"}) + "\"11\",\"14\"\r\n");
  EXPECT_THROW(amounts.read(folder.folder()), RuntimeError);
  EXPECT_EQ(amounts.of("11162026").text, "40");
  EXPECT_EQ(amounts.of("11142026").text, "50");
}

}  // namespace
}  // namespace tallywick
