// Opening the window, pressing numbers, Quick Pick, Replay and Clear.
#include "core/runtime_error.h"
#include "selection/selection_fixture.h"

namespace tallywick::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Selection, NumbersStandUnderTheirControlNames) {
  constexpr std::pair<const char*, const char*> names[] = {
      {"01", "Command2"},  {"02", "Command10"}, {"09", "Command3"},  {"10", "Command17"},
      {"51", "Command58"}, {"52", "Command85"}, {"53", "Command6"},  {"54", "Command8"},
      {"55", "Command61"}, {"77", "Command83"}, {"78", "Command87"}, {"79", "Command88"}};
  open(megaMillions);
  for (const auto& [number, name] : names) {
    ASSERT_NE(form->find(name), nullptr) << name;
    EXPECT_EQ(form->find(number), form->find(name)) << number;
  }
  EXPECT_EQ(form->title(), "The Tallywick Software... Selection (Mega Millions)");
  open();
  EXPECT_NE(form->find("69"), nullptr);
  EXPECT_EQ(form->find("70"), nullptr);
}

TEST_F(Selection, PressesGoThroughTheMarksOfTheNumber) {
  struct Row {
    const GameInfo& game;
    const char* number;
    const char* thrice;
  };
  for (const Row& row :
       {Row{powerBall, "07", "main extra none"}, Row{powerBall, "26", "main extra none"},
        Row{powerBall, "27", "main none main"}, Row{powerBall, "69", "main none main"},
        Row{megaMillions, "25", "main extra none"}, Row{megaMillions, "26", "main none main"},
        Row{megaMillions, "79", "main none main"}}) {
    open(row.game);
    EXPECT_FALSE(form->Command59.visible());
    std::string seen;
    for (int i = 0; i < 3; ++i) {
      press(row.number);
      const Color color = static_cast<Button*>(form->find(row.number))->backColor();
      seen += color == Color::rgb(0, 255, 255)   ? "main "
              : color == Color::rgb(255, 0, 255) ? "extra "
              : color == colors::threeDLight     ? "none "
                                                 : "? ";
    }
    EXPECT_EQ(trimmed(seen), row.thrice) << row.game.name << " " << row.number;
    EXPECT_TRUE(form->Command59.visible());
  }
  open(megaMillions);
  mark("40", Mark::extra);
  press("40");
  EXPECT_EQ(marks(), "");
}

TEST_F(Selection, OpeningEmptiesTheCurrentPlaysAndListsTheOthers) {
  constexpr std::string_view noPlay = "11-11-1111,00,00,00,00,00,00,0000000";
  scratch.write(path("7.Ply"), records({"11-18-2026,05,11,22,33,44,06,1111100"}));
  scratch.write(path("1.Ply"),
                records({"11-23-2026,05,11,22,33,44,06,1111100", "11-25-2026,05,11,22,33,44,06,1111100",
                         "11-23-2026,06,11,22,33,44,07,1111100"}));
  scratch.write(path("2.Ply"), records({noPlay, "11-14-2026,10,20,30,40,50,06,0111110", noPlay}));
  scratch.write(path("9.Sel"), "\"one, two\"\r\n\"three\"");
  open();
  EXPECT_TRUE(scratch.exists(path("7.Ply")) && get("7.Ply").empty());
  EXPECT_THAT(itemsOf(form->Combo1), IsEmpty());
  EXPECT_THAT(itemsOf(form->Combo8), ElementsAre("  11-23-2026      05  11  22  33  44  06",
                                                 "  11-23-2026      06  11  22  33  44  07"));
  EXPECT_EQ(form->Combo8.text(), "  11-23-2026      05  11  22  33  44  06");
  EXPECT_THAT(itemsOf(form->Combo7), ElementsAre("  11-14-2026      10  20  30  40  50  06"));
  EXPECT_EQ(form->Combo7.text(), "  11-14-2026      10  20  30  40  50  06");
  EXPECT_THAT(itemsOf(form->List1), ElementsAre(" one, two", " three"));
  EXPECT_THAT(form->StatusBar1.panels(), ElementsAre(":    3", "", ""));

  scratch.write(path("2.Ply"), records({noPlay}));
  open();
  EXPECT_EQ(form->Combo7.text(), "");
  EXPECT_TRUE(form->Command60.enabled()) << "a record that is not listed is a record";
}

TEST_F(Selection, OpensOnAnEmptyFolder) {
  open(megaMillions);
  EXPECT_TRUE(scratch.exists(path("7.Ply", megaMillions)));
  EXPECT_FALSE(form->Command60.enabled());
  EXPECT_THAT(itemsOf(form->Combo8), IsEmpty());
  EXPECT_THAT(form->StatusBar1.panels(), ElementsAre("", "", ""));
  EXPECT_TRUE(form->Command5.enabled() && form->Command9.enabled() && form->Command84.enabled());
  EXPECT_FALSE(form->Command1.enabled() || form->Command4.enabled());
  EXPECT_FALSE(form->Label1.visible() || form->Command7.visible());
}

TEST_F(Selection, ReplayMarksThePlayInTheHistoryBoxWithinItsRange) {
  struct Row {
    const GameInfo& game;
    const char* play;
    const char* marks;
  };
  for (const Row& row : {Row{powerBall, "05,11,23,42,59,26", "05 11 23 [26] 42 59 "},
                         Row{powerBall, "05,11,23,42,60,07", "05 [07] 11 23 42 "},
                         Row{powerBall, "05,11,23,42,63,27", "05 11 23 27 42 "},
                         Row{megaMillions, "05,11,23,59,70,52", "05 11 23 [52] 59 "},
                         Row{megaMillions, "05,11,23,42,59,53", "05 11 23 42 53 59 "}}) {
    scratch.write(path("2.Ply", row.game), records({join("11-14-2026,", row.play, ",0")}));
    open(row.game);
    mark("01 02", Mark::main);
    press("Command60");
    EXPECT_EQ(marks(), row.marks) << row.play;
    EXPECT_TRUE(form->Command59.visible());
  }
  press("Command84");
  EXPECT_EQ(marks(), "");
}

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

TEST_F(Selection, QuickPickWithoutADrawIsTheRuntimesError) {
  const auto error = [&] {
    try {
      press("Command9");
    } catch (const RuntimeError& raised) {
      return raised.number();
    }
    return 0;
  };
  open();
  EXPECT_EQ(error(), 53);
  scratch.write(inFolder(powerBall, drawsFile), "");
  EXPECT_EQ(error(), 62);
}

}  // namespace
}  // namespace tallywick::test
