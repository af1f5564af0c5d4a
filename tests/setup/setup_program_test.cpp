// SPDX-License-Identifier: GPL-3.0-or-later
// tallywick-setup: what a new folder holds and what an existing one keeps.
#include "setup/setup_program.h"

#include "core/draws.h"
#include "core/plays.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::setup {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* powerBallHeader = "Draw Date,Winning Numbers,Multiplier,double_play_winning_numbers\n";

/// Runs the program; what it printed.
std::string run(std::vector<std::string> arguments, int expected = 0) {
  arguments.insert(arguments.begin(), "tallywick-setup");
  std::vector<const char*> words;
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  std::ostringstream out;
  std::ostringstream errors;
  EXPECT_EQ(runSetup(static_cast<int>(words.size()), words.data(), out, errors), expected) << errors.str();
  return out.str() + errors.str();
}

TEST(Setup, ForceDrawsReplacesDrawsAndAmountsAndLeavesPlaysAlone) {
  const test::ScratchFolder scratch;
  const std::string folder = (scratch.root() / "book").string();
  run({folder, "--now", "11-21-2026 12:00:00"});
  const auto before = scratch.snapshot();
  EXPECT_THAT(run({folder}, 1), HasSubstr("already holds plays; nothing was changed"));
  EXPECT_EQ(scratch.snapshot(), before);

  scratch.write("powerball.csv",
                powerBallHeader + std::string("06/10/2026,01 02 03 04 05 06,2,11 12 13 14 15 16\n"));
  scratch.write("amounts.csv", "Draw Date,Amount,Mark Count\n06/10/2026,\"1,500\",2\n");
  run({folder, "--force-draws", "--powerball", (scratch.root() / "powerball.csv").string(),
       "--powerball-amounts", (scratch.root() / "amounts.csv").string()});
  const auto after = scratch.snapshot();
  std::vector<std::string> changed;
  for (const auto& [name, text] : after) {
    if (before.contains(name) && before.at(name) != text) changed.push_back(name.substr(name.rfind('/') + 1));
  }
  EXPECT_THAT(changed,
              ElementsAre("QZRNUM6.Dat", "QZRNUM62.Dat", "QZRNUM72.Dat", "QzrPwr.Win", "README.txt"));
  EXPECT_EQ(after.at("book/QzrNumbers/QZR6PWR/QzrPwr.Win"),
            "\"06\",\"10\",\"2026\",\"1,500\",\"2\"\r\n\"06\",\"10\",\"2026\",\"1,500\",\"2\"\r\n");
  EXPECT_THAT(after.at("book/README.txt"), HasSubstr("Mega Millions: draws and amounts left as they were"));
}

TEST(Setup, ASampleFolderIsRepeatableAndHasWhatTheDisplaysRead) {
  const test::ScratchFolder scratch;
  for (const char* name : {"a", "b"}) {
    run({(scratch.root() / name).string(), "--seed", "7", "--now", "11-21-2026 12:00:00"});
  }
  const auto files = scratch.snapshot();
  for (const auto& [name, text] : files) {
    if (!name.starts_with("a/")) continue;
    EXPECT_EQ(files.at("b/" + name.substr(2)), text) << name;
  }
  const DataFolder folder(scratch.root() / "a");
  SequentialReader doublePlay(folder, "QzrNumbers/QZR6PWR/QZRNUM72.Dat");
  std::size_t draws = 0;
  forEachRecord<doublePlayFields>(doublePlay, [&](const auto&) { ++draws; });
  EXPECT_GT(draws, 100U);
  SequentialReader newest(folder, "QzrNumbers/QZR6PWR/QZRNUM6.Dat");
  EXPECT_EQ(drawOf(newest.record<drawFields>()).displayDate(), "11-18-2026");
  EXPECT_EQ(PlayFile(folder, "QzrNumbers/QZR6MEG/QZR6MEG1.Ply").plays().front().date, "11-24-2026");
  EXPECT_THAT(files.at("a/QZRNUM22.DTE"), testing::StartsWith(R"("01","01","2002","Tuesday","001","2")"));
  EXPECT_THAT(files.at("a/QZRNUM22.DTE"),
              testing::EndsWith("\r\n\"12\",\"31\",\"2050\",\"Saturday\",\"365\",\"6\"\r\n"));
}

TEST(Import, TheRealExportsAreTakenWholeAndLackWhatTheyLack) {
  const test::ScratchFolder scratch;
  const std::string real = TALLYWICK_REAL_DRAWS;
  if (!std::filesystem::exists(real + "/powerball.csv")) GTEST_SKIP() << "no real draws in " << real;
  const std::string told = run({(scratch.root() / "book").string(), "--powerball", real + "/powerball.csv",
                                "--mega-millions", real + "/mega-millions.csv"});
  EXPECT_THAT(told, testing::Not(HasSubstr("refused")));
  EXPECT_THAT(told,
              HasSubstr("missing: 06-28-2014 06-10-2017 04-28-2021 03-12-2022 04-09-2022 11-07-2022\n"));
  EXPECT_THAT(told, HasSubstr("missing: 10-18-2013\n"));
  EXPECT_THAT(scratch.read("book/QzrNumbers/QZR6MEG/QZR6MEG2.Ply"), IsEmpty());
}

}  // namespace
}  // namespace tallywick::setup
