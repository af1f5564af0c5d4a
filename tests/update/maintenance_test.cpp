// SPDX-License-Identifier: GPL-3.0-or-later
// Play-file maintenance on broken files, and that no kill spoils the plays.
#include "update/maintenance.h"

#include "support/fakes.h"
#include "support/killed_run.h"
#include "support/raised.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

constexpr std::string_view drawn = "11-18-2026,05,11,22,33,44,06,1111100";
constexpr std::string_view sameDay = "11-21-2026,01,02,03,04,05,06,5000000";
constexpr std::string_view laterDraw = "11-23-2026,07,18,29,30,41,02,1121000";
constexpr std::string_view older = "11-14-2026,10,20,30,40,50,06,0111110";
constexpr std::string_view oldest = "11-11-2026,10,20,30,40,50,07,0111110";

class Maintenance : public testing::Test {
 protected:
  Maintenance() {
    put("QZRNUM6.dat", "11,21,2026,1,2,3,4,5,6,x\r\n12,31,2026,1,2,3,4,5,6,x\r\n");
    put("QZR6PWR1.Sav", "old save");
    put("QZR6PWR2.Ply", records({older, oldest}));
  }

  void put(std::string_view file, std::string_view text) { scratch.write(path(file), text); }
  std::string get(std::string_view file) { return scratch.read(path(file)); }
  static std::string path(std::string_view file) { return "QzrNumbers\\QZR6PWR\\" + std::string(file); }
  void run() { Command1_Click(scratch.folder(), starter); }

  std::int32_t errorOfRun() {
    return raisedBy([this] { run(); }).number;
  }

  ScratchFolder scratch;
  RecordingStarter starter;
};

TEST_F(Maintenance, FailsAsTheRuntimeDoesAndTouchesNothing) {
  auto before = scratch.snapshot();
  EXPECT_EQ(errorOfRun(), 53) << "no pending file";
  put("QZR6PWR1.Ply", records({drawn}) + "11-23-2026,07,18\r\n");
  before = scratch.snapshot();
  EXPECT_EQ(errorOfRun(), 62) << "a record cut short";
  put("QZRNUM6.dat", "");
  before["QzrNumbers/QZR6PWR/QZRNUM6.dat"] = "";
  EXPECT_EQ(errorOfRun(), 62) << "no draw";
  EXPECT_EQ(scratch.snapshot(), before);
  std::filesystem::remove_all(scratch.root() / "QzrNumbers/QZR6PWR");
  EXPECT_EQ(errorOfRun(), 76) << "no game folder";
  EXPECT_TRUE(starter.started.empty());
}

// At every system call of the run. Killed before the change is made, the next run is the first; from then on
// it is a second one, which finds nothing drawn and lists what is pending in its work file.
TEST_F(Maintenance, KilledAnywhereAndRunAgainEndsAsOneUndisturbedOrTwo) {
  put("qzr6pwr1.ply", records({laterDraw, drawn, sameDay}));
  const auto before = scratch.snapshot();
  run();
  const auto once = scratch.snapshot();
  EXPECT_EQ(once.size(), 7U) << "a file was made twice or left behind";
  EXPECT_EQ(get("QZR6PWR2.Ply"), records({drawn, sameDay, older, oldest}));
  run();
  const auto twice = scratch.snapshot();

  int call = 1;
  int seconds = 0;
  for (RunEnd end = RunEnd::killed; end == RunEnd::killed; ++call) {
    for (const auto& file : scratch.snapshot()) std::filesystem::remove(scratch.root() / file.first);
    for (const auto& [name, text] : before) scratch.write(name, text);
    end = runKilledAt(call, [&] { run(); });
    if (end == RunEnd::untraced) GTEST_SKIP() << "this system does not let a test trace its own child";
    ASSERT_NE(end, RunEnd::failed) << "call " << call;
    run();
    const bool isSecond = get("QZR6PWR3.Ply") == records({laterDraw});
    seconds += isSecond ? 1 : 0;
    ASSERT_EQ(scratch.snapshot(), isSecond ? twice : once) << "killed at call " << call;
  }
  EXPECT_TRUE(seconds > 5 && seconds < call - 5) << seconds << " of " << call;
  EXPECT_GT(call, 60) << "the runs were not killed where files change";
}

}  // namespace
}  // namespace tallywick::test
