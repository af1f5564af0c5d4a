// SPDX-License-Identifier: GPL-3.0-or-later
// The sentences beside the slip: they promise what a press then does.
#include "selection/hints.h"

#include "selection/removed_plays.h"
#include "selection/selection_fixture.h"

namespace tallywick::test {
namespace {

using testing::HasSubstr;

/// So many numbers beginning with `first`.
std::string numbers(int first, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += twoDigits(first + i) + " ";
  return text;
}

TEST_F(Selection, TheHintPromisesAPlayWhereSelectEntersOneAndOnlyThere) {
  for (const GameInfo& game : {powerBall, megaMillions}) {
    for (int mains = 0; mains <= 7; ++mains) {
      for (const char* extras : {"", "03", "03 07", "47", "03 47"}) {
        SCOPED_TRACE(join(game.name, " ", std::to_string(mains), " and ", extras));
        open(game);
        mark(numbers(60, mains), Mark::main);
        mark(extras, Mark::extra);
        const MarksHint hint = marksHint(*form);
        form->Command59.show();
        press("Command59");
        const bool entered = !form->Combo1.items().empty();
        EXPECT_EQ(hint.text.find("Select will enter") != std::string::npos, entered) << hint.text;
        EXPECT_EQ(hint.kind == MarksHint::Kind::ready, entered && mains == 5) << hint.text;
      }
    }
  }
}

TEST_F(Selection, SaysInASentenceWhatSelectWillDo) {
  const struct {
    const char* mains;
    const char* extras;
    const char* text;
  } cases[] = {
      {"", "",
       "Mark five numbers, and one of 01 to 25 twice for the Mega Ball. 71 to 79 and Mega Ball 25 are no "
       "longer drawn."},
      {"06 23 41", "14", "Two numbers are missing."},
      {"06 23 41 58", "", "One number and the Mega Ball are missing."},
      {"06 23 41 58", "14", "Four numbers and a Mega Ball: Select will enter 14 as number and Mega Ball."},
      {"06 23 41 58 60", "", "The Mega Ball is missing: press one of 01 to 25 twice."},
      {"06 23 41 58 70", "24", "Select will enter this play for the draw of Tue 11-24-2026."},
      {"06 23 41 58 75", "25",
       "Select will enter this play for the draw of Tue 11-24-2026. 75 and Mega Ball 25 are no longer "
       "drawn."},
      {"06 23 41 58 60 61", "",
       "Six numbers are marked: press one of 01 to 25 again to make it the Mega Ball."},
      {"06 23 41 58 60 61", "14",
       "Six numbers and a Mega Ball are marked: Select will refuse them and take all marks off."},
      {"06", "14 15", "Two Mega Balls are marked: Select will refuse them and take all marks off."},
      {"06", "47",
       "47 cannot be the Mega Ball: Select will take this mark off and leave the others. Mega Ball 47 is no "
       "longer drawn."},
  };
  for (const auto& each : cases) {
    open(megaMillions);
    mark(each.mains, Mark::main);
    mark(each.extras, Mark::extra);
    EXPECT_EQ(marksHint(*form).text, each.text);
  }
}

TEST_F(Selection, AReplayAndALineSayWhatTheyCannotMark) {
  scratch.write(path("2.Ply"), records({"11-18-2026,05,11,63,68,69,33,1100003"}));
  open();
  press("Command60");
  EXPECT_EQ(replayHint(*form), "Replay does not mark 63, 68 and 69 and PowerBall 33; press what is missing.");
  EXPECT_EQ(markLine(*form, " 01  63  68  69  75  26"), "The slip does not have 75.");
  EXPECT_EQ(marks(), "01 [26] 63 68 69 ");
  EXPECT_EQ(markLine(*form, form->Combo7.text()), "The slip does not have PowerBall 33.");
  EXPECT_EQ(marks(), "05 11 63 68 69 ");
  scratch.write(path("2.Ply"), records({"11-18-2026,05,11,23,44,61,09,1100003"}));
  open();
  press("Command60");
  EXPECT_EQ(replayQuestion(*form, form->Combo7.text()),
            "The earlier play had 61, which Replay has not marked. Four numbers and a PowerBall: Select will "
            "enter 09 as number and PowerBall.\n\nSelect the play without 61?");
  mark("61", Mark::main);
  EXPECT_EQ(replayQuestion(*form, form->Combo7.text()), "");
}

TEST_F(Selection, MarksThatARefusalTookOffComeBack) {
  open();
  RemovedMarks removed;
  mark("05 11", Mark::main);
  mark("07", Mark::extra);
  form->Command59.show();
  for (const char* action : {"Command84", "Command59"}) {
    EXPECT_TRUE(removed.watch(*form, [&] { press(action); }));
    EXPECT_EQ(marks(), "");
    EXPECT_TRUE(removed.bringBack(*form));
    EXPECT_EQ(marks(), "05 [07] 11 ");
  }
  press("Command84");
  mark("01", Mark::main);
  EXPECT_TRUE(removed.watch(*form, [&] { press("Command84"); }));
  EXPECT_TRUE(removed.bringBack(*form));
  mark("05 12 13 14", Mark::main);
  mark("07", Mark::extra);
  EXPECT_FALSE(removed.watch(*form, [&] { press("Command59"); }))
      << "a play that was entered is not brought back";
  EXPECT_FALSE(removed.bringBack(*form));
}

TEST_F(Selection, SaysForWhichDrawsThePlaysAre) {
  open();
  EXPECT_EQ(drawCountHint(*form), "");
  select("01 02 03 04 05", "06");
  EXPECT_EQ(drawCountHint(*form), "one draw: Sat 11-21-2026");
  EXPECT_EQ(countStepHint(*form), "For more draws press Draw, then ## PlaysDates.");
  for (const char* name : {"Command1", "Command4", "Command4"}) press(name);
  EXPECT_EQ(drawCountHint(*form), "three draws, the last on Wed 11-25-2026");
  EXPECT_EQ(countStepHint(*form),
            "Done enters them so. ## PlaysDates counts up only; after ten it begins again with one.");
  select("01 02 03 04 07", "06");
  EXPECT_EQ(countStepHint(*form), "Done enters them so; Draw would go back to one draw.");
  press("Command1");
  EXPECT_EQ(countLostHint(*form, 3),
            "Draw has set the draws back from three to one; ## PlaysDates counts them up again.");
  for (const char* name : {"Command4", "Command4"}) press(name);
  EXPECT_TRUE(hasPlaysToLose(*form));
  press("Command5");
  EXPECT_FALSE(hasPlaysToLose(*form));
  EXPECT_EQ(committedHint(*form),
            "Saved. Now six plays wait, two for each of three draws from Sat 11-21-2026 to Wed 11-25-2026.");
  scratch.write("QZRNUM22.DTE", records({"11,21,2026,day,n,6"}));
  open();
  select("01 02 03 04 05", "06");
  form->Label1.setCaption("   2");
  EXPECT_THAT(drawCountHint(*form), HasSubstr("does not reach so far"));
}

TEST_F(Selection, PlaysAreTakenOffTheListsAndComeBackToTheirPlaces) {
  const std::string first = "11-21-2026,01,02,03,04,05,06,5000000";
  scratch.write(path("1.Ply"), records({first, "11-11-1111,,,,,,,", "11-21-2026,11,12,13,14,15,06,0500000",
                                        "11-25-2026,21,22,23,24,25,06,0050000"}));
  open();
  EXPECT_EQ(recordOfNextPlay(*form, 1), 3U);
  EXPECT_EQ(recordOfNextPlay(*form, 2), std::nullopt) << "only the plays of the first date are shown";
  for (const char* mains : {"01 02 03 04 05", "11 12 13 14 15", "21 22 23 24 25"}) select(mains, "06");
  const std::string before = get("7.Ply");
  const RemovedPlay removed = removeCurrentPlay(*form, 1);
  EXPECT_EQ(form->Combo1.items().size(), 2U);
  EXPECT_EQ(form->StatusBar1.panels()[1], "2");
  EXPECT_EQ(get("7.Ply").find("\"11\",\"12\""), std::string::npos);
  bringCurrentPlayBack(*form, removed);
  EXPECT_EQ(get("7.Ply"), before);
  scratch.write(path("7.Ply"), records({first}));
  EXPECT_THROW(removeCurrentPlay(*form, 0), std::runtime_error) << "the file is not what is shown";
  EXPECT_EQ(get("7.Ply"), records({first}));
}

}  // namespace
}  // namespace tallywick::test
