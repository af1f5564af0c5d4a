// SPDX-License-Identifier: GPL-3.0-or-later
// Quick Pick from chosen random values.
#include "selection/selection_fixture.h"

namespace tallywick::test {
namespace {

/// A value whose draw is `number` out of `limit`.
double value(int number, int limit) {
  return (number - 0.5) / limit;
}

TEST_F(Selection, QuickPickDrawsRepairsOnceAndMarks) {
  struct Row {
    const char* name;
    const GameInfo& game;
    std::vector<double> values;
    const char* seeds;
    const char* marks;
  };
  const auto at = [](int n) { return value(n, 69); };
  const auto mega = [](int n) { return value(n, 70); };
  const Row rows[] = {
      {"all different",
       powerBall,
       {at(5), at(9), at(23), at(42), at(69), value(26, 26)},
       "abcdef",
       "05 09 23 [26] 42 69 "},
      {"the smallest and largest values",
       powerBall,
       {0.0, at(9), at(23), at(42), 0.9999999, 0.0, at(2), at(3)},
       "abcdefa",
       "[01] 02 09 23 42 69 "},
      {"an extra like a main number",
       powerBall,
       {at(7), at(9), at(23), at(42), at(6), value(7, 26), at(8)},
       "abcdefa",
       "06 [07] 08 09 23 42 "},
      {"repeated after the redraw",
       powerBall,
       {at(9), at(9), at(23), at(42), at(6), value(7, 26), at(9), at(9)},
       "abcdefab",
       "06 [07] 09 23 42 "},
      {"redrawn to 75",
       megaMillions,
       {mega(9), mega(9), mega(23), mega(42), mega(70), value(25, 25), value(75, 75)},
       "abcdefa",
       "09 23 [25] 42 70 75 "},
      {"the extra redrawn out of 15",
       megaMillions,
       {mega(9), mega(8), mega(23), mega(42), mega(54), value(9, 25), value(9, 75), value(15, 15)},
       "abcdefaf",
       "08 09 [15] 23 42 "},
  };
  for (const Row& row : rows) {
    scratch.write(inFolder(row.game, drawsFile), "11,18,2026,a,b,c,d,e,f,x\r\n11,14,2026,1,2,3,4,5,6,x\r\n");
    open(row.game);
    mark("01 02 64", Mark::main);
    random = ScriptedRandom();
    random.values = row.values;
    press("Command9");
    std::string seeds;
    for (const std::string& seed : random.seeds) seeds += seed;
    EXPECT_EQ(seeds, row.seeds) << row.name;
    EXPECT_EQ(marks(), row.marks) << row.name;
  }
}

TEST_F(Selection, QuickPickIsAnotherOneAtEveryPress) {
  scratch.write(inFolder(powerBall, drawsFile), "11,18,2026,05,11,22,33,44,06,x\r\n");
  MixingGenerator generator(1);
  SelectionForm window(powerBall, {scratch.folder(), clock, generator, boxes});
  std::set<std::vector<Mark>> seen;
  for (int i = 0; i < 50; ++i) {
    click(window.Command9);
    std::vector<Mark> now;
    for (const auto& button : window.numbers) now.push_back(markOf(*button));
    EXPECT_EQ(std::count(now.begin(), now.end(), Mark::extra), 1);
    EXPECT_EQ(std::count(now.begin() + 26, now.end(), Mark::extra), 0);
    seen.insert(now);
  }
  EXPECT_EQ(seen.size(), 50U);
}

}  // namespace
}  // namespace tallywick::test
