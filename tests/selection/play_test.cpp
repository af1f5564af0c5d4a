// SPDX-License-Identifier: GPL-3.0-or-later
// Select and Done on files that others have changed, and marks that no press makes.
#include "core/file_commit.h"
#include "core/plays.h"
#include "selection/selection_fixture.h"
#include "selection/selection_handlers.h"

namespace tallywick::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(Selection, MarksThatNoPressMakesAreRefusedOrTakenOff) {
  open();
  mark("05 11", Mark::main);
  mark("52 43", Mark::extra);
  form->Command59.show();
  press("Command59");
  EXPECT_EQ(boxes.only(), "PowerBall Lottery Game|You've Selected an Invalid PowerBall Number.");
  EXPECT_EQ(marks(), "05 11 [52] ");
  press("52");
  EXPECT_EQ(marks(), "05 11 ");
  form->Label1.setCaption("odd");
  form->Command4.setEnabled(true);
  press("Command4");
  EXPECT_EQ(form->Label1.caption(), "   2");
}

TEST_F(Selection, TheHiddenDrawCountIsShownByItsButtonWhichUnmarkingHides) {
  open();
  form->Command7.show();
  press("40");
  press("Command7");
  EXPECT_TRUE(form->Label1.visible() && form->Command1.enabled() && form->Command7.visible());
  EXPECT_FALSE(form->Command7.enabled());
  press("40");
  EXPECT_FALSE(form->Command7.visible());
}

TEST_F(Selection, DoneForOneDrawPutsTheCurrentPlaysInTheCommittedPlace) {
  scratch.write(path("1.Ply"), records({"11-18-2026,01,02,03,04,05,06,5000000"}));
  open();
  // Bare fields keep their bytes; the copy is written anew.
  const std::string bare = "11-21-2026,01,02,03,04,05,06,5000000\r\n11-23-2026,05,11,23,42,60,07,1110101";
  scratch.write(path("7.Ply"), bare);
  scratch.write(path("2.Ply"), records({"11-14-2026,10,20,30,40,50,06,0111110"}));
  press("Command5");
  EXPECT_EQ(get("1.Ply"), bare);
  EXPECT_EQ(get("1.Sav"),
            records({"11-21-2026,01,02,03,04,05,06,5000000", "11-23-2026,05,11,23,42,60,07,1110101"}));
  EXPECT_TRUE(scratch.exists(path("7.Ply")) && get("7.Ply").empty());
  EXPECT_EQ(scratch.snapshot().size(), 5U) << "a file was made twice or left behind";
  EXPECT_THAT(form->StatusBar1.panels(), ElementsAre("Lotto Plays: 2", "", "11-21-2026  for  1  Plays."));
  EXPECT_EQ(form->Combo7.items().size(), 1U);
  EXPECT_TRUE(form->Command60.enabled());
  for (const Button* button : {&form->Command1, &form->Command4, &form->Command5, &form->Command7,
                               &form->Command9, &form->Command59, &form->Command84}) {
    EXPECT_FALSE(button->enabled()) << button->name();
  }
  EXPECT_FALSE(form->Label1.visible());
  open();
  EXPECT_THAT(itemsOf(form->Combo8), ElementsAre("  11-21-2026      01  02  03  04  05  06"));
  EXPECT_TRUE(form->Command5.enabled());
}

TEST_F(Selection, DoneForSeveralDrawsRepeatsThePlaysByDate) {
  open(megaMillions);
  scratch.write(path("5.Ply", megaMillions), "left behind");
  scratch.write(path("7.Ply", megaMillions),
                records({"11-24-2026,05,11,23,42,60,07,11101010", "11-27-2026,06,11,23,42,60,07,11101010"}));
  form->Label1.setCaption("  10");
  press("Command5");
  std::string expected;
  for (const char* date :
       {"11-24", "11-27", "12-01", "12-04", "12-08", "12-11", "12-15", "12-18", "12-22", "12-25"}) {
    expected += records(
        {join(date, "-2026,05,11,23,42,60,07,11101010"), join(date, "-2026,06,11,23,42,60,07,11101010")});
  }
  EXPECT_EQ(get("1.Ply"), expected);
  EXPECT_EQ(get("1.Sav"), expected);
  EXPECT_TRUE(scratch.exists(path("7.Ply", megaMillions)) && get("7.Ply").empty());
  EXPECT_FALSE(scratch.exists(path("5.Ply", megaMillions)));
  EXPECT_THAT(form->StatusBar1.panels(), ElementsAre("Lotto Plays: 20", "", "11-24-2026  for  2  Plays."));
}

TEST_F(Selection, DoneWithoutPlaysEmptiesTheCommittedOnes) {
  for (const char* count : {"    ", "   3"}) {
    scratch.write(path("1.Ply"), records({"11-18-2026,01,02,03,04,05,06,5000000"}));
    open().Label1.setCaption(count);
    press("Command5");
    EXPECT_TRUE(scratch.exists(path("1.Ply")) && get("1.Ply").empty());
    EXPECT_THAT(form->StatusBar1.panels(), ElementsAre("Lotto Plays: 0", "", ""));
  }
}

TEST_F(Selection, AGapInTheCalendarIsToldAndNothingIsWritten) {
  struct Row {
    const char* name;
    const char* calendar;
    const char* drawCount;  ///< of Done; empty for a Select
  };
  const Row rows[] = {
      {"missing", nullptr, ""},
      {"empty", "", ""},
      {"without today", "11,20,2026,day,n,5\r\n11,22,2026,day,n,7\r\n11,23,2026,day,n,1\r\n", ""},
      {"without a later draw day", "11,21,2026,day,n,5\r\n11,22,2026,day,n,7\r\n", ""},
      {"cut short", "11,21,2026,day,n,5\r\n11,22,2026,", ""},
      {"missing", nullptr, "   2"},
      {"without the first date", "11,20,2026,day,n,5\r\n11,23,2026,day,n,1\r\n11,25,2026,day,n,3\r\n",
       "   2"},
      {"one draw day short", "11,21,2026,day,n,6\r\n11,23,2026,day,n,1\r\n", "   3"},
  };
  for (const Row& row : rows) {
    open();
    const bool isDone = *row.drawCount != '\0';
    if (isDone) scratch.write(path("7.Ply"), records({"11-21-2026,05,11,23,42,60,07,1110101"}));
    std::filesystem::remove(scratch.root() / "QZRNUM22.DTE");
    if (row.calendar != nullptr) scratch.write("QZRNUM22.DTE", row.calendar);
    if (isDone) form->Label1.setCaption(row.drawCount);
    boxes.shown.clear();
    const auto before = scratch.snapshot();
    if (isDone) {
      mark("05", Mark::main);
      press("Command5");
    } else {
      select("05 11 23 42 60", "07");
    }
    EXPECT_THAT(boxes.only(),
                testing::AllOf(HasSubstr("Tallywick Software|"), HasSubstr("\"QZRNUM22.DTE\"")));
    EXPECT_EQ(boxes.shown.at(0).icon, MessageBox::Icon::exclamation);
    EXPECT_EQ(scratch.snapshot(), before) << row.name;
    EXPECT_NE(marks(), "") << row.name;
    EXPECT_TRUE(form->Command5.enabled() && form->Command59.enabled());
    EXPECT_EQ(form->Command1.enabled(), false);
  }
}

TEST_F(Selection, AnotherProgramAtTheFilesIsToldAndThePlayStays) {
  open();
  {
    const os::FileLock lock = lockFolder(scratch.root() / "QzrNumbers" / "QZR6PWR");
    select("05 11 23 42 60", "07");
  }
  EXPECT_THAT(boxes.only(), HasSubstr("Tallywick Software|Another program"));
  EXPECT_EQ(marks(), "05 [07] 11 23 42 60 ");
  press("Command59");
  const std::string play = records({"11-21-2026,05,11,23,42,60,07,1110101"});
  EXPECT_EQ(get("7.Ply"), play);
  {
    const os::FileLock lock = lockFolder(scratch.root() / "QzrNumbers" / "QZR6PWR");
    open();
  }
  EXPECT_EQ(get("7.Ply"), play);
  EXPECT_EQ(boxes.shown.size(), 2U);
  EXPECT_FALSE(form->Command9.enabled() || form->Command5.enabled() || form->Command60.enabled());
}

TEST_F(Selection, DoneCommitsWhatTheFileContainsWhateverTheWindowShows) {
  const std::string other = records({"11-23-2026,01,02,03,04,05,06,5000000"});
  for (const std::string& current : {other, std::string()}) {
    open();
    scratch.write(path("1.Ply"), "committed");
    select("05 11 23 42 59", "26");
    EXPECT_TRUE(showsCurrentPlays(*form));
    scratch.write(path("7.Ply"), current);
    EXPECT_FALSE(showsCurrentPlays(*form));
    press("Command5");
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_EQ(get("1.Ply"), current);
  }
}

TEST_F(Selection, ARecordsEmptyLastFieldStays) {
  const std::string plays = records({"11-21-2026,01,02,03,04,05,06,", "11-21-2026,07,08,09,10,11,12,"});
  for (const char* count : {"    ", "   2"}) {
    open();
    scratch.write(path("7.Ply"), "11-21-2026,01,02,03,04,05,06,\r\n11-21-2026,07,08,09,10,11,12,");
    form->Label1.setCaption(count);
    press("Command5");
    EXPECT_EQ(get("1.Sav").substr(0, plays.size()), plays) << count;
    EXPECT_EQ(PlayFile(scratch.folder(), path("1.Ply")).plays().at(1).main[4], "11") << count;
  }
}

TEST_F(Selection, SelectAppendsBehindWhateverEndsTheFile) {
  const std::string whole = R"("11-23-2026","01","02","03","04","05","06","5000000")";
  const std::string emptyLast = R"("11-23-2026","01","02","03","04","05","06",)";
  const std::string openQuote = R"("11-23-2026","01","02","03","04","05","06","50,)";
  for (const std::string& left : {whole + "\r\n", whole + "\n", whole + "\r", whole, whole + ",", emptyLast,
                                  emptyLast + "\r\n", openQuote}) {
    open();
    scratch.write(path("7.Ply"), left);
    const PlayFile before(scratch.folder(), path("7.Ply"));
    select("05 11 23 42 59", "26");
    EXPECT_EQ(itemsOf(form->Combo1).size(), 2U) << left;
    const PlayFile current(scratch.folder(), path("7.Ply"));
    EXPECT_EQ(current.plays().at(0).decades, before.plays().at(0).decades) << left;
    EXPECT_EQ(current.plays().at(1).main[0], "05") << left;
  }
}

TEST_F(Selection, WhatACrashLeftBehindIsFinishedBeforeThePlaysAreRead) {
  open();
  const std::string plays = records({"11-21-2026,05,11,23,42,60,07,1110101"});
  scratch.write(path("7.Ply"), plays);
  scratch.write(path("1.Ply.tw~"), plays);
  scratch.write(path("7.Ply.tw~"), "");
  scratch.write(join(powerBall.folder, "TALLYWICK.JNL"),
                "tallywick-journal 1\nQZR6PWR1.Ply\nQZR6PWR7.Ply\n/\n");
  select("06 11 23 42 60", "07");
  EXPECT_EQ(get("1.Ply"), plays);
  EXPECT_EQ(get("7.Ply"), records({"11-21-2026,06,11,23,42,60,07,1110101"}));
}

}  // namespace
}  // namespace tallywick::test
