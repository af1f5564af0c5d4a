// SPDX-License-Identifier: GPL-3.0-or-later
// What a game folder's files become when an export is merged into them.
#include "exports/merge.h"

#include "core/eras.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "exports/folder_merge.h"
#include "exports/made_up.h"
#include "support/host.h"
#include "support/record_book.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick::exports {
namespace {

using test::records;
using testing::HasSubstr;

/// One of the files after a merge; as it was where it is not among the changed ones.
std::string fileOf(const Merge& merge, std::string_view name, const std::string& before) {
  for (const NewFile& file : merge.files) {
    if (file.name == name) return file.contents;
  }
  return before;
}

DrawEntry draw(Day day, int first, std::string multiplier = "2") {
  return {day, {{first, first + 1, first + 2, first + 3, first + 4}, 9}, std::move(multiplier)};
}

constexpr Day older = dayOf(2026, 11, 11);
constexpr Day old = dayOf(2026, 11, 14);
constexpr Day newer = dayOf(2026, 11, 16);

/// `count` draws up to `last`, one a day.
ExportedDraws exportOf(std::size_t count, Day last = newer) {
  ExportedDraws exported;
  for (; exported.draws.size() < count; last += -1) exported.draws.push_back(draw(last, 1));
  return exported;
}

TEST(MergedHistory, GoesByDate) {
  const std::string first = "11,14,2026,01,02,03,04,05,09,2";
  const std::string second = "11,11,2026,11,12,13,14,15,09,3";
  struct Case {
    const char* name;
    std::string before;
    std::vector<DrawEntry> draws;
    std::string after;
  };
  for (const Case& merged : std::initializer_list<Case>{
           {"a new draw comes first",
            records({first, second}),
            {draw(newer, 21)},
            records({"11,16,2026,21,22,23,24,25,09,2", first, second})},
           {"an older one last, in any order",
            records({first}),
            {draw(older, 11, "3"), draw(newer, 21)},
            records({"11,16,2026,21,22,23,24,25,09,2", first, second})},
           {"a known one wins",
            records({first, second}),
            {draw(old, 31, "5")},
            records({"11,14,2026,31,32,33,34,35,09,5", second})},
           {"a doubled one becomes one",
            records({first, first, second}),
            {draw(old, 1)},
            records({first, second})},
           {"a doubled one that is in no export stays",
            records({first, second, second}),
            {draw(old, 1)},
            records({first, second, second})},
           {"unsorted ones are sorted", records({second, first}), {draw(old, 1)}, records({first, second})},
           {"what changes nothing keeps its bytes",
            "11,14,2026,01,02,03,04,05,09,2\n",
            {draw(old, 1)},
            "11,14,2026,01,02,03,04,05,09,2\n"},
           {"a record without a date stays in its place",
            records({first, "x,x,x,1,2,3,4,5,6,7", second}),
            {draw(newer, 21)},
            records({"11,16,2026,21,22,23,24,25,09,2", first, "x,x,x,1,2,3,4,5,6,7", second})},
           {"a cut record goes", records({first}) + "\"11\",\"11\"", {draw(old, 1)}, records({first})}}) {
    for (const Game game : {Game::powerBall, Game::megaMillions}) {
      const GameFiles files{merged.before, merged.before, {}, {}};
      const Merge merge = mergeInto(game, merged.draws, {}, files);
      EXPECT_EQ(fileOf(merge, drawsFile, files.draws), merged.after) << merged.name;
      EXPECT_EQ(fileOf(merge, searchDrawsFile, files.draws), merged.after) << merged.name;
    }
  }
}

TEST(MergedDoublePlay, TakesKnownNumbersAndKeepsEverythingElse) {
  const std::string known = "11,14,2026,01,02,03,04,05,09,A,B,31,32,33,34,35,06,C";
  const std::string blank = "11,11,2026,11,12,13,14,15,09,3,DP,,,,,,,1";
  const GameFiles files{{}, {}, records({known, blank}), {}};
  DrawEntry filled = draw(older, 11, "3");
  filled.doublePlay = Balls{{41, 42, 43, 44, 45}, 7};
  const Merge merge = mergeInto(Game::powerBall, {draw(newer, 21), draw(old, 1), filled}, {}, files);
  EXPECT_EQ(fileOf(merge, doublePlayFile, {}),
            records({"11,16,2026,21,22,23,24,25,09,2,DP,,,,,,,1", known,
                     "11,11,2026,11,12,13,14,15,09,3,DP,41,42,43,44,45,07,1"}));
}

TEST(MergedDoublePlay, GetsARecordForEveryDrawNewerThanItsNewest) {
  const Merge full = mergeInto(Game::powerBall, exportOf(102, old).draws, {}, {});
  GameFiles files{fileOf(full, drawsFile, {}), {}, fileOf(full, doublePlayFile, {}), {}};
  const Merge merge = mergeInto(Game::powerBall, {draw(newer, 21)}, {}, files);
  EXPECT_EQ(fileOf(merge, doublePlayFile, {}),
            records({"11,16,2026,21,22,23,24,25,09,2,DP,,,,,,,1"}) + files.doublePlay);
}

TEST(MergedAmounts, KeepWhatIsKnownAndShowNoOtherDrawsAmount) {
  std::vector<DrawEntry> draws;
  for (Day day = newer; draws.size() < 17; day += -1) draws.push_back(draw(day, 1));
  GameFiles files;
  // The last record is never used, so it may be an amount that nobody has seen.
  files.amounts = records({"11,14,2026, 250 ,1", "11,11,2026,230,0", "7,4,2026,40,2"});
  for (int run = 0; run < 3; ++run) {
    const Merge merge = mergeInto(Game::powerBall, draws, {{older, "260", 0}}, files);
    EXPECT_EQ(merge.files.empty(), run > 0) << "run " << run;
    files = {fileOf(merge, drawsFile, files.draws), fileOf(merge, searchDrawsFile, files.searchDraws),
             fileOf(merge, doublePlayFile, files.doublePlay),
             fileOf(merge, powerBall.winningsFile, files.amounts)};
  }
  EXPECT_EQ(files.amounts,
            records({"11,16,2026,,0", "11,15,2026,,0", "11,14,2026, 250 ,1", "11,13,2026,,0", "11,12,2026,,0",
                     "11,11,2026,260,0", "11,10,2026,,0", "11,09,2026,,0", "11,08,2026,,0", "11,07,2026,,0",
                     "11,06,2026,,0", "11,05,2026,,0", "11,04,2026,,0", "11,03,2026,,0", "11,02,2026,,0",
                     "7,4,2026,40,2", "7,4,2026,40,2"}));
}

TEST(MergedExport, FailsWhereItWouldLoseSomething) {
  GameFiles files;
  files.draws = fileOf(mergeInto(Game::powerBall, exportOf(300).draws, {}, {}), drawsFile, {});
  const auto failure = [&](const ExportedDraws& exported,
                           DrawOrigin origin = DrawOrigin::real) -> std::string {
    try {
      mergeExport(Game::powerBall, exported, {}, files, origin);
      return "";
    } catch (const std::runtime_error& error) {
      return error.what();
    }
  };
  EXPECT_EQ(failure({}), "there is no draw in it");
  EXPECT_EQ(failure(exportOf(100)), "it has 100 draws; at least 101 are needed");
  EXPECT_EQ(failure(exportOf(149)), "it has 149 draws, fewer than half of the 300 that are known already");
  EXPECT_EQ(failure(exportOf(149), DrawOrigin::madeUp), "");
  EXPECT_EQ(failure(exportOf(150)), "");
  ExportedDraws refused = exportOf(200);
  refused.refused.newestDay = newer;
  EXPECT_EQ(failure(refused), "") << "no newer than what is known";
  refused.refused.newestDay = newer + 1;
  refused.refused.newest = {2, "5 numbers instead of 6"};
  EXPECT_EQ(failure(refused), "the newest draw, in line 2, cannot be used: 5 numbers instead of 6");
}

class MergeOfAFolder : public testing::Test {
 protected:
  MergeOfAFolder() { test::writeRecordBook(scratch); }

  void merge(std::size_t count) {
    FolderMerge change(scratch.folder(), Game::powerBall, [&](const GameFiles& files, DrawOrigin origin) {
      return mergeExport(Game::powerBall, exportOf(count), {}, files, origin);
    });
    change.commit();
  }

  test::ScratchFolder scratch;
};

TEST_F(MergeOfAFolder, ChangesTheDrawsAloneOnceAndLeavesItWhereItFails) {
  const auto before = scratch.snapshot();
  EXPECT_THROW(merge(50), std::runtime_error);
  EXPECT_EQ(scratch.snapshot(), before);
  merge(200);
  auto after = scratch.snapshot();
  EXPECT_NE(after, before);
  for (const auto& [name, text] : before) {
    const bool isMerged = name.find("QZR6PWR/QZRNUM") != std::string::npos || name.ends_with("QzrPwr.Win");
    EXPECT_TRUE(isMerged || after.at(name) == text) << name;
  }
  const auto draws = scratch.folder().resolve("QzrNumbers/QZR6PWR/QZRNUM6.Dat");
  const auto written = test::makeOld(draws);
  // The library cannot give a folder a time everywhere. A folder that keeps it had no lock in it.
  const auto changed = test::hasPosixFiles ? test::makeOld(draws.parent_path()) : written;
  merge(200);
  EXPECT_EQ(scratch.snapshot(), after);
  EXPECT_EQ(std::filesystem::last_write_time(draws), written) << "nothing was written";
  if (test::hasPosixFiles) {
    EXPECT_EQ(std::filesystem::last_write_time(draws.parent_path()), changed) << "there was no lock";
  }
}

TEST_F(MergeOfAFolder, IsAtWorkAloneFollowsNoLinkAndMakesAMissingGame) {
  if (!test::hasPosixFiles) GTEST_SKIP() << "needs a link to a folder";
  merge(200);
  {
    const os::FileLock atWork = lockFolder(scratch.folder().resolve(powerBall.folder));
    EXPECT_THROW(merge(200), LockedByAnother) << "it may be changing just that";
  }
  const auto numbers = scratch.root() / "QzrNumbers";
  std::filesystem::rename(numbers / "QZR6PWR", scratch.root() / "elsewhere");
  std::filesystem::create_directory_symlink(scratch.root() / "elsewhere", numbers / "QZR6PWR");
  EXPECT_THROW(merge(201), RuntimeError);
  std::filesystem::remove(numbers / "QZR6PWR");
  merge(201);
  EXPECT_TRUE(scratch.exists("QzrNumbers/QZR6PWR/QZR6PWR3.Ply")) << "a game that was missing";
}

TEST_F(MergeOfAFolder, ReplacesMadeUpDrawsAsAWholeAndTakesTheMarkAway) {
  const std::string claim = "made-up sample draws and amounts\r\n";
  scratch.write("readme.TXT", join(notesHead, "\r\n\r\nPowerBall: ", claim, "Mega Millions: ", claim));
  EXPECT_TRUE(isMadeUp(scratch.folder(), Game::powerBall)) << "known by the first release's README";
  merge(101);
  EXPECT_FALSE(isMadeUp(scratch.folder(), Game::powerBall));
  EXPECT_TRUE(isMadeUp(scratch.folder(), Game::megaMillions));
  EXPECT_EQ(scratch.read("QzrNumbers/QZR6MEG/SAMPLE.TXT"), "");
  const std::string draws = scratch.read("QzrNumbers/QZR6PWR/QZRNUM6.Dat");
  EXPECT_EQ(std::ranges::count(draws, '\n'), 101);
  EXPECT_EQ(draws.find("\"12\",\"28\",\"2026\""), std::string::npos);
}

}  // namespace
}  // namespace tallywick::exports
