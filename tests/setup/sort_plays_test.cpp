// The sort tool: the order it makes, what it leaves alone, and that it is started after the maintenance.
#include "setup/sort_plays.h"

#include "core/file_commit.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::setup {
namespace {

using test::records;

constexpr std::string_view folder = "QzrNumbers/QZR6PWR/";
constexpr std::string_view november = "11-28-2026,01,02,03,04,05,06,5000000";
constexpr std::string_view sameDay = "11-28-2026,07,18,29,30,41,02,1121000";
constexpr std::string_view january = "01-02-2027,01,02,03,04,05,06,5000000";
constexpr std::string_view lastYear = "12-30-2025,01,02,03,04,05,06,5000000";
constexpr std::string_view noPlay = "11-11-1111,00,00,00,00,00,00,0000000";
constexpr std::string_view noSuchDay = "02-30-2026,01,02,03,04,05,06,5000000";
constexpr std::string_view otherForm = "1-2-2026,01,02,03,04,05,06,5000000";

class SortTool : public testing::Test {
 protected:
  int run(std::string_view folderName = folder) {
    std::ostringstream out;
    std::ostringstream told;
    const std::string path = scratch.folder().resolve(folderName).string();
    const char* const words[] = {"qzrsrt3", path.c_str()};
    const int exitCode = runSort(2, words, out, told);
    EXPECT_EQ(out.str(), "") << "it shares the output of the program that starts it";
    errors = told.str();
    return exitCode;
  }
  void put(std::string_view name, std::string_view text) {
    scratch.write(std::string(folder).append(name), text);
  }
  std::filesystem::path file(std::string_view name) const { return scratch.root() / folder / name; }

  test::ScratchFolder scratch;
  std::string errors;
};

TEST_F(SortTool, PutsPlaysInTheOrderOfTheCalendarAndLeavesEverythingElse) {
  put("qzr6pwr1.ply", records({january, noPlay, november, noSuchDay, lastYear, otherForm, sameDay}));
  put("QZR6PWR2.Ply", records({january, lastYear}));
  put("QZR6PWR1.Sav", records({january, lastYear}));
  scratch.write("QzrNumbers/QZR6MEG/QZR6MEG1.Ply", records({january, lastYear}));
  auto expected = scratch.snapshot();
  expected["QzrNumbers/QZR6PWR/qzr6pwr1.ply"] =
      records({lastYear, november, sameDay, january, noPlay, noSuchDay, otherForm});
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(scratch.snapshot(), expected);

  EXPECT_EQ(run("QzrNumbers/QZR6MEG"), 0);
  EXPECT_EQ(scratch.read("QzrNumbers/QZR6MEG/QZR6MEG1.Ply"), records({lastYear, january}));
}

TEST_F(SortTool, KeepsEachLineAsItIsWritten) {
  put("QZR6PWR1.Ply", "01-02-2027,01, 02,03,04,05,06,\n\"11-28-2026\",07,18,29,30,41,02,\"1,2\"");
  EXPECT_EQ(run(), 0);
  EXPECT_EQ(scratch.read("QzrNumbers/QZR6PWR/QZR6PWR1.Ply"),
            "\"11-28-2026\",07,18,29,30,41,02,\"1,2\"\r\n01-02-2027,01, 02,03,04,05,06,\n");
}

TEST_F(SortTool, DoesNotTouchAFileThatIsInOrder) {
  for (const std::string& plays : {records({november, sameDay, january, noPlay}), std::string()}) {
    put("QZR6PWR1.Ply", plays);
    const auto before = std::filesystem::file_time_type() + std::chrono::hours(1);
    std::filesystem::last_write_time(file("QZR6PWR1.Ply"), before);
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(std::filesystem::last_write_time(file("QZR6PWR1.Ply")), before);
  }
}

TEST_F(SortTool, LeavesAMalformedFileAsItIs) {
  const std::string good = records({january, november});
  const std::string cut = "\"11-28-2026\",\"01\",\"02\"\r\n";
  struct Case {
    std::string plays;
    std::string_view line;
  };
  for (const Case& broken :
       {Case{good + cut, "line 3"}, Case{cut + good, "line 1"}, Case{good + "\r\n", "line 3"},
        Case{good.substr(0, good.size() - 2) + ",\"9\"\r\n", "line 2"}}) {
    put("QZR6PWR1.Ply", broken.plays);
    const auto before = scratch.snapshot();
    EXPECT_EQ(run(), 1);
    EXPECT_NE(errors.find(std::string("QZR6PWR1.Ply, ").append(broken.line)), std::string::npos) << errors;
    EXPECT_EQ(scratch.snapshot(), before);
  }
}

TEST_F(SortTool, GivesUpWhereTheFileChangedOrIsLocked) {
  put("QZR6PWR1.Ply", records({january, november}));
  const CommittedPlays read(file("QZR6PWR1.Ply"));
  put("QZR6PWR1.Ply", records({january, lastYear, november}));
  auto before = scratch.snapshot();
  EXPECT_THROW(read.putInOrder(), PlaysLeftAlone);
  EXPECT_EQ(scratch.snapshot(), before);

  const os::FileLock held = lockFolder(scratch.root() / folder);
  EXPECT_EQ(run(), 1);
  EXPECT_EQ(scratch.snapshot(), before);
}

TEST_F(SortTool, TellsWhereThereAreNoCommittedPlays) {
  put("QZR6PWR1.Ply.tw~", "somebody's");
  EXPECT_EQ(run(), 1);
  EXPECT_NE(errors.find("holds neither QZR6PWR1.Ply nor QZR6MEG1.Ply"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(file("QZR6PWR1.Ply.tw~"))) << "no folder of the program's";
}

}  // namespace
}  // namespace tallywick::setup
