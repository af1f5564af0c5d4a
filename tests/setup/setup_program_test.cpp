// SPDX-License-Identifier: GPL-3.0-or-later
// tallywick-setup: what a new folder contains and what an existing one keeps.
#include "setup/setup_program.h"

#include "core/day.h"
#include "core/draws.h"
#include "core/plays.h"
#include "support/host.h"
#include "support/scratch_folder.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::setup {
namespace {

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
  EXPECT_EQ(runSetup(static_cast<int>(words.size()), words.data(), {out, errors}), expected) << errors.str();
  return out.str() + errors.str();
}

/// An export with a draw of every day of so many before 11-21-2026.
std::string dailyExport(int count) {
  std::string csv = powerBallHeader;
  for (Day day = dayOf(2026, 11, 20); count-- > 0; day += -1) csv += displayDate(day) + ",1 2 3 4 5 6,2,\n";
  return csv;
}

TEST(Setup, AnExportIsMergedIntoAFolderAndForceDrawsReplacesAll) {
  const test::ScratchFolder scratch;
  const std::string folder = (scratch.root() / "book").string();
  const std::string now = "11-21-2026 12:00:00";
  run({folder, "--now", now});
  const auto before = scratch.snapshot();
  EXPECT_THAT(run({folder}, 1), HasSubstr("already contains draws or plays; nothing was changed"));
  EXPECT_EQ(scratch.snapshot(), before);

  scratch.write("long.csv", dailyExport(150));
  scratch.write("short.csv", dailyExport(101));
  scratch.write("amounts.csv", "Draw Date,Amount,Mark Count\n11/20/2026,\"1,500\",2\n11/19/2026,,\n");
  const auto merge = [&](const std::string& csv, const std::vector<std::string>& more) {
    std::vector<std::string> words = {folder, "--now", now, "--powerball", (scratch.root() / csv).string()};
    words.insert(words.end(), more.begin(), more.end());
    return run(words);
  };
  const auto countDraws = [&] {
    return std::ranges::count(scratch.read("book/QzrNumbers/QZR6PWR/QZRNUM6.Dat"), '\n');
  };
  EXPECT_THAT(merge("long.csv", {"--powerball-amounts", (scratch.root() / "amounts.csv").string()}),
              HasSubstr("150 new draws, 0 changed, 1 new amounts"));
  EXPECT_THAT(scratch.read("book/QzrNumbers/QZR6PWR/QzrPwr.Win"),
              testing::StartsWith(R"("11","20","2026","1,500","2")"));
  EXPECT_EQ(countDraws(), 150) << "made-up draws go as a whole";
  merge("short.csv", {});
  EXPECT_EQ(countDraws(), 150) << "real ones stay";
  merge("short.csv", {"--force-draws"});
  EXPECT_EQ(countDraws(), 101);
  for (const auto& [name, text] : before) {
    const bool isOthers = name.find("QZR6PWR/QZRNUM") == std::string::npos && !name.ends_with("QzrPwr.Win") &&
                          !name.ends_with("QZR6PWR/SAMPLE.TXT");
    EXPECT_TRUE(!isOthers || scratch.read(name) == text) << name;
  }
}

TEST(Setup, ANewFolderTakesNothingThatIsThereAlready) {
  if (!test::hasPosixFiles) GTEST_SKIP() << "needs links, and two spellings of a name";
  const test::ScratchFolder scratch;
  namespace fs = std::filesystem;
  struct Case {
    const char* name;
    std::string says;
    std::vector<std::string> options = {};
  };
  scratch.write("a/qzrnumbers", "a file");
  scratch.write("b/QzrNumbers/qzr6meg/qzrnum6.dat", "draws without plays");
  scratch.write("c/QzrNumbers/QZR6MEG/qzrnum6.dat", "draws");
  fs::create_directory_symlink(scratch.root() / "a", scratch.root() / "c/QzrNumbers/QZR6PWR");
  scratch.write("d", "a file");
  fs::create_directories(scratch.root() / "f/QZRNUMBERS");
  fs::create_directories(scratch.root() / "f/qzrnumbers/qzr6pwr");
  const auto before = scratch.snapshot();
  for (const Case& refused : {Case{"a", "qzrnumbers is in the way: it is not a folder"},
                              Case{"b", "already contains draws or plays"},
                              Case{"c", "QZR6PWR is in the way: it is a link", {"--force-draws"}},
                              Case{"d", "d is in the way: it is not a folder"},
                              Case{"f", "f/qzrnumbers are in each other's way"}}) {
    std::vector<std::string> words = refused.options;
    words.push_back((scratch.root() / refused.name).string());
    EXPECT_THAT(run(words, 1), HasSubstr(refused.says));
    EXPECT_EQ(scratch.snapshot(), before) << refused.name;
  }
  for (const std::vector<std::string>& empty :
       {std::vector<std::string>{""}, {"--publish", "", "--from", "x"}, {"--publish", "x", "--from", ""}}) {
    EXPECT_THAT(run(empty, 2), HasSubstr("the name is empty"));
  }

  scratch.write("e/ReadMe.TXT", "mine");
  fs::create_symlink("nowhere", scratch.root() / "e/tallywick.ini");
  run({(scratch.root() / "e").string()});
  EXPECT_EQ(scratch.read("e/ReadMe.TXT"), "mine");
  EXPECT_FALSE(fs::exists(scratch.root() / "e/README.txt"));
  EXPECT_TRUE(fs::is_symlink(scratch.root() / "e/tallywick.ini"));
  EXPECT_TRUE(fs::exists(scratch.root() / "e/QzrNumbers/QZR6PWR/SAMPLE.TXT"));
  for (const char* secret : {"e/PWF.TXT", "e/PWF2.TXT"}) {
    const fs::perms others = fs::status(scratch.root() / secret).permissions() & fs::perms(077);
    EXPECT_EQ(others, fs::perms::none) << secret;
  }
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

TEST(Setup, ADrawIsTypedInAndRemoved) {
  const test::ScratchFolder scratch;
  const std::string folder = (scratch.root() / "book").string();
  const std::vector<std::string> add = {"--add-draw", "powerball", "11-21-2026", "5 14 23 41 60", "7"};
  scratch.write("long.csv", dailyExport(150));
  run({folder, "--now", "11-21-2026 12:00:00", "--powerball", (scratch.root() / "long.csv").string()});
  const auto runOn = [&](std::vector<std::string> words, const std::vector<std::string>& more, int exitCode) {
    words.insert(words.begin(), {folder, "--now", "11-21-2026 12:00:00"});
    words.insert(words.end(), more.begin(), more.end());
    return run(words, exitCode);
  };
  EXPECT_THAT(runOn(add, {"--marks", "x"}, 1), HasSubstr("winning tickets: \"x\" is not a number"));
  EXPECT_EQ(runOn(add, {}, 0), "PowerBall: the draw of 11-21-2026 was added\n");
  EXPECT_EQ(runOn(add, {}, 0), "PowerBall: the draw of 11-21-2026 is known already; nothing was changed\n");
  EXPECT_THAT(runOn(add, {"--multiplier", "3"}, 1), HasSubstr("another multiplier is known already: 1"));
  EXPECT_EQ(runOn(add, {"--multiplier", "3", "--replace"}, 0),
            "PowerBall: the draw of 11-21-2026 was changed\n");
  for (const std::vector<std::string>& wrong :
       {std::vector<std::string>{"--fetch"}, {"--seed", "x"}, {"--remove-draw", "powerball", "11-21-2026"}}) {
    runOn(add, wrong, 2);
  }
  runOn({"--remove-draw", "lotto", "11-21-2026"}, {}, 2);
  EXPECT_THAT(runOn({"--remove-draw", "powerball", "11-20-2026"}, {}, 1), HasSubstr("it stays"));
  EXPECT_EQ(runOn({"--remove-draw", "powerball", "11-21-2026"}, {}, 0),
            "PowerBall: the draw of 11-21-2026 was removed\n");
}

TEST(Import, TheRealExportsAreTakenWholeAndLackWhatTheyLack) {
  const test::ScratchFolder scratch;
  const std::string real = TALLYWICK_REAL_DRAWS;
  if (!std::filesystem::exists(real + "/powerball.csv"))
    GTEST_SKIP() << "no real draws in TALLYWICK_REAL_DRAWS";
  const std::string report = run({(scratch.root() / "book").string(), "--powerball", real + "/powerball.csv",
                                  "--mega-millions", real + "/mega-millions.csv"});
  EXPECT_THAT(report, testing::Not(HasSubstr("refused")));
  EXPECT_THAT(report,
              HasSubstr("missing: 06-28-2014 06-10-2017 04-28-2021 03-12-2022 04-09-2022 11-07-2022\n"));
  EXPECT_THAT(report, HasSubstr("missing: 10-18-2013\n"));
  EXPECT_THAT(scratch.read("book/QzrNumbers/QZR6MEG/QZR6MEG2.Ply"), IsEmpty());
}

}  // namespace
}  // namespace tallywick::setup
