// SPDX-License-Identifier: GPL-3.0-or-later
// The sort tool: the order it makes, and when it leaves a file as it is.
#include "sort/sort_plays.h"

#include "core/file_commit.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::sort {
namespace {

using test::records;

constexpr std::string_view november = "11-28-2026,01,02,03,04,05,06,5000000";
constexpr std::string_view sameDay = "11-28-2026,07,18,29,30,41,02,1121000";
constexpr std::string_view january = "01-02-2027,01,02,03,04,05,06,5000000";
constexpr std::string_view lastYear = "12-30-2025,01,02,03,04,05,06,5000000";
constexpr std::string_view noPlay = "11-11-1111,00,00,00,00,00,00,0000000";
constexpr std::string_view noSuchDay = "02-30-2026,01,02,03,04,05,06,5000000";
constexpr std::string_view otherForm = "1-2-2026,01,02,03,04,05,06,5000000";

TEST(DrawOrder, IsThatOfTheCalendarWithWhatHasNoDateBehind) {
  EXPECT_EQ(inDrawOrder(records({january, noPlay, november, noSuchDay, lastYear, otherForm, sameDay}), ""),
            records({lastYear, november, sameDay, january, noPlay, noSuchDay, otherForm}));
  EXPECT_EQ(inDrawOrder(records({lastYear, november, sameDay, january, noPlay, otherForm}), ""),
            std::nullopt);
  EXPECT_EQ(inDrawOrder("", ""), std::nullopt);
  EXPECT_EQ(inDrawOrder("01-02-2027,1, 2,3,4,5,6,\n\"11-28-2026\",7,18,29,30,41,2,\"1,2\"", ""),
            "\"11-28-2026\",7,18,29,30,41,2,\"1,2\"\r\n01-02-2027,1, 2,3,4,5,6,\n")
      << "each line as it is written, and with an end";
}

class SortTool : public testing::Test {
 protected:
  int run(std::string_view folder = "QzrNumbers/QZR6PWR") {
    std::ostringstream out;
    std::ostringstream err;
    const std::string path = scratch.folder().resolve(folder).string();
    const char* const words[] = {"qzrsrt3", path.c_str()};
    const int exitCode = runSort(2, words, out, err);
    EXPECT_EQ(out.str(), "") << "it shares the output of the program that starts it";
    errors = err.str();
    return exitCode;
  }

  test::ScratchFolder scratch;
  const std::string plays = "QzrNumbers/QZR6PWR/qzr6pwr1.ply";
  const std::filesystem::path file = (scratch.root() / plays).make_preferred();
  std::string errors;
};

TEST_F(SortTool, SortsTheCommittedPlaysOfItsFolderAndNothingElse) {
  for (const std::string name :
       {"PWR/qzr6pwr1.ply", "PWR/QZR6PWR2.Ply", "PWR/QZR6PWR1.Sav", "MEG/QZR6MEG1.Ply"})
    scratch.write("QzrNumbers/QZR6" + name, records({january, lastYear}));
  auto expected = scratch.snapshot();
  EXPECT_EQ(run(), 0);
  expected[plays] = records({lastYear, january});
  EXPECT_EQ(scratch.snapshot(), expected);
  EXPECT_EQ(run("QzrNumbers/QZR6MEG"), 0);
  expected["QzrNumbers/QZR6MEG/QZR6MEG1.Ply"] = records({lastYear, january});
  EXPECT_EQ(scratch.snapshot(), expected);

  const auto longAgo = test::makeOld(file);
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(std::filesystem::last_write_time(file), longAgo) << "it was in order";
}

TEST_F(SortTool, LeavesAMalformedFileAsItIs) {
  const std::string good = records({january, november});
  const std::string cut = "\"11-28-2026\",\"01\",\"02\"\r\n";
  const std::string tooLong = "\"11-28-2026\",1,2,3,4,5,6,7,8\r\n";
  for (const std::string& broken : {good + cut, good + "\r\n", good + tooLong}) {
    scratch.write(plays, broken);
    EXPECT_EQ(run(), 1);
    EXPECT_NE(errors.find(file.string() + ", line 3: "), std::string::npos) << errors;
    EXPECT_EQ(scratch.read(plays), broken);
  }
}

TEST_F(SortTool, GivesUpWhereTheFileChangedOrIsLockedOrMissing) {
  EXPECT_EQ(run(), 1);
  EXPECT_NE(errors.find("contains neither QZR6PWR1.Ply nor QZR6MEG1.Ply"), std::string::npos);

  scratch.write(plays, records({january, november}));
  const CommittedPlays read(file);
  const std::string newer = records({january, lastYear, november});
  scratch.write(plays, newer);
  EXPECT_THROW(read.putInOrder(), PlaysLeftAlone);
  const os::FileLock held = lockFolder(file.parent_path());
  EXPECT_EQ(run(), 1);
  EXPECT_EQ(scratch.read(plays), newer);
}

}  // namespace
}  // namespace tallywick::sort
