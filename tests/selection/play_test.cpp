// SPDX-License-Identifier: GPL-3.0-or-later
// Select and Done on files that others have changed, and marks that no press makes.
#include "core/file_commit.h"
#include "core/plays.h"
#include "selection/selection_fixture.h"
#include "selection/selection_handlers.h"

namespace tallywick::test {
namespace {

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
  // A fifth mark makes a play where it is an extra one up to 55, though no press marks 27 to 55 so.
  select("33 42", "55");
  EXPECT_EQ(get("7.Ply"), records({"11-21-2026,05,11,33,42,55,55,1101110"}));
  select("05 11 12 33", "56");
  EXPECT_EQ(boxes.shown.back().text, "Six Numbers Must Be Selected...");
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

TEST_F(Selection, DoneTakesNoCommittedPlayAway) {
  const std::string first = records({"11-18-2026,01,02,03,04,05,06,5000000"});
  const std::string second = records({"11-21-2026,05,11,23,42,60,07,1110101"});
  const std::string fresh = records({"11-21-2026,06,11,23,42,60,07,1110101"});
  const std::string torn = "\"11-23-2026\",\"01\"";
  struct Row {
    const char* name;
    std::string committed;
    std::string current;
    EarlierPlays earlier;
    std::size_t wouldGo;
    std::string after;
    bool isCopied;
  };
  const Row rows[] = {
      {"replaced", first + second, fresh, EarlierPlays::replaced, 2, fresh, true},
      {"replaced by none", first, "", EarlierPlays::replaced, 1, "", true},
      {"both kept", first + second, fresh + second, EarlierPlays::kept, 1, fresh + second + first, false},
      {"the same in another order", first + second, second + first, EarlierPlays::kept, 0, second + first,
       false},
      {"one of two equal ones", first + first, first, EarlierPlays::replaced, 1, first, true},
      {"cut short", first + torn, fresh, EarlierPlays::kept, 2, fresh + first, true},
      {"torn in the middle", torn + "\r\n" + first + second, fresh, EarlierPlays::kept, 3,
       fresh + first + second, true},
      {"no real play", records({"11-11-1111,,,,,,,"}), fresh, EarlierPlays::replaced, 0, fresh, true},
      {"none before", "", fresh, EarlierPlays::replaced, 0, fresh, false},
  };
  for (const Row& row : rows) {
    open().earlierPlays = row.earlier;
    scratch.write(path("1.Ply"), row.committed);
    scratch.write(path("7.Ply"), row.current);
    const GoingPlays going = playsThatWouldGo(*form);
    EXPECT_EQ(going.plays + (going.isTorn ? 1 : 0), row.wouldGo) << row.name;
    press("Command5");
    EXPECT_EQ(get("1.Ply"), row.after) << row.name;
    EXPECT_EQ(get("1.Sav"), row.after) << row.name;
    const std::string copy = path("1 2026-11-21 120000.Ply");
    EXPECT_EQ(get("1 2026-11-21 120000.Ply"), row.isCopied ? row.committed : "") << row.name;
    std::filesystem::remove(scratch.folder().resolve(copy));
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
    EXPECT_FALSE(finishEarlierChange(*form));
  }
  EXPECT_EQ(get("7.Ply"), play);
  EXPECT_EQ(boxes.shown.size(), 3U);
  EXPECT_FALSE(form->Command9.enabled() || form->Command5.enabled() || form->Command60.enabled());
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
  const auto leaveHalfMade = [&] {
    scratch.write(path("7.Ply"), plays);
    scratch.write(path("1.Ply.tw~"), plays);
    scratch.write(path("7.Ply.tw~"), "");
    scratch.write(join(powerBall.folder, "TALLYWICK.JNL"),
                  "tallywick-journal 1\nQZR6PWR1.Ply\nQZR6PWR7.Ply\n/\n");
  };
  leaveHalfMade();
  EXPECT_TRUE(finishEarlierChange(*form));
  EXPECT_EQ(get("1.Ply") + get("7.Ply"), plays) << "before Done's questions";
  scratch.write(path("1.Ply"), "");
  leaveHalfMade();
  select("06 11 23 42 60", "07");
  EXPECT_EQ(get("1.Ply"), plays);
  EXPECT_EQ(get("7.Ply"), records({"11-21-2026,06,11,23,42,60,07,1110101"}));
}

}  // namespace
}  // namespace tallywick::test
