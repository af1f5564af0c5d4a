// Start-up, the game switch, and what opens and closes.
#include "app/start_up.h"
#include "support/fake_platform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::ApplicationTest;
using test::itemsOf;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The visible ones of the frames that tell the game.
std::string visibleGameFrames(const GameFrames& frames) {
  std::string names;
  for (const Frame* frame : {&frames.Frame4, &frames.Frame5, &frames.Frame6, &frames.Frame11}) {
    if (frame->visible()) names += frame->name() + " ";
  }
  return names;
}

/// The game whose update and selection can be started from the menus.
std::string menusOf(const MainMenu& menu) {
  std::string games;
  if (menu.mnuPowerBall2.enabled() && menu.mnuPowerBall3.enabled()) games += "PowerBall";
  if (menu.mnuMegaMillions2.enabled() && menu.mnuMegaMillions3.enabled()) games += "Mega Millions";
  return games;
}

TEST(StartUp, OpensOnPowerBallWithEverythingFilled) {
  ApplicationTest test;
  MainForm& form = test.start();
  EXPECT_EQ(visibleGameFrames(form.frames), "Frame4 ");
  EXPECT_FALSE(form.frames.Frame12.visible());
  EXPECT_EQ(menusOf(form.menu), "PowerBall");
  EXPECT_EQ(form.bar.Command48.toolTip(), "PowerBall Play Selection");
  EXPECT_THAT(itemsOf(form.summary.List1), SizeIs(15));
  EXPECT_EQ(form.summary.List1.items()[0], " 12-28-2026    01 02 03 04 05   01  *  40");
  EXPECT_THAT(itemsOf(form.summary.List2), ElementsAre(" 12-28-2026    01 02 03 50 51   20"));
  EXPECT_THAT(itemsOf(form.summary.List4), SizeIs(119));
  EXPECT_EQ(form.summary.frequent[5].caption(), "01");
  EXPECT_EQ(form.search.twoThree.numbers[4].caption(), "05");
  EXPECT_THAT(itemsOf(form.search.twoThree.Combo4), SizeIs(120));
  EXPECT_EQ(form.search.played.Combo3.items()[0], " 12-28-2026    2");
  EXPECT_THAT(itemsOf(form.winnings.List17), SizeIs(1));
  EXPECT_EQ(form.draws.Draw1.title(), "Tallywick Last 100 Draws");
  EXPECT_THAT(form.draws.Draw1.bars(), SizeIs(6));
  EXPECT_FALSE(form.search.played.Command24.visible());
  EXPECT_THAT(test.platform.boxes.shown, IsEmpty());
}

TEST(StartUp, SkipsWhatFailsAndFillsTheRest) {
  ApplicationTest test;
  const std::string folder = "QzrNumbers/QZR6PWR/";
  std::filesystem::remove(test.scratch.folder().resolve(folder + "QzrPwr.Win"));
  test.scratch.write(folder + "QZRNUM6.Dat", test::dailyDraws(3));
  test.scratch.write(folder + "QZRNUM62.Dat", test::dailyDraws(2) + "\"12\"");
  MainForm& form = test.start();
  EXPECT_THAT(itemsOf(form.summary.List1), SizeIs(3));
  EXPECT_EQ(form.summary.List1.items()[0], " 12-28-2026    01 02 03 04 05   01     ");
  EXPECT_THAT(itemsOf(form.summary.List3), IsEmpty());
  EXPECT_EQ(form.summary.frequent[0].caption(), "01");
  EXPECT_THAT(itemsOf(form.winnings.List14), SizeIs(2));
  EXPECT_THAT(test.platform.events, ElementsAre("open Form1"));
}

TEST(StartUp, SurvivesAFolderThatDoesNotStand) {
  MainForm form;
  startUp(form, DataFolder("/nonexistent/tallywick"));
  EXPECT_EQ(form.summary.Label17.caption(), "Previous Amount Draws:");
}

TEST(GameSwitch, TheMenusAndFramesFollowTheShownGame) {
  ApplicationTest test;
  MainForm& form = test.start();
  form.bar.SSTab1.setTab(3);
  form.winnings.Combo10.setText("old verdict");
  test.press("mnuMegaMillions");
  EXPECT_EQ(visibleGameFrames(form.frames), "Frame11 ");
  EXPECT_EQ(menusOf(form.menu), "Mega Millions");
  EXPECT_EQ(form.bar.SSTab1.tab(), 0);
  EXPECT_EQ(form.winnings.Combo10.text(), "");
  EXPECT_EQ(form.bar.Command48.caption(), "Mega Millions Play Selection");
  EXPECT_EQ(form.summary.List1.items()[1], " 12-27-2026    02 03 04 05 06   02     40");
  EXPECT_EQ(form.summary.List3.items()[2], " 5 of 5 Win:    $50,000");
  EXPECT_TRUE(form.frames.Frame12.visible());

  test.press("mnuPowerBall");
  EXPECT_EQ(test.platform.boxes.only(), "TALLYWICK SOFTWARE|Display PowerBall Double Play Information  ?");
  EXPECT_EQ(visibleGameFrames(form.frames), "Frame4 ");
  EXPECT_EQ(menusOf(form.menu), "PowerBall");
  EXPECT_FALSE(form.frames.Frame12.visible());
}

TEST(GameSwitch, UpdateComesBackWhereTheSwitchHidItButNotWhereAnUpdateDid) {
  ApplicationTest test;
  MainForm& form = test.start();
  test.press("mnuMegaMillions");
  EXPECT_FALSE(form.update.Command2.visible());
  test.press("Command7");
  EXPECT_TRUE(form.update.Command2.visible());
  form.update.Command2.hide();
  test.press("mnuMegaMillions");
  test.press("mnuPowerBall");
  EXPECT_FALSE(form.update.Command2.visible());
}

TEST(DoublePlay, StandsInThePlaceOfPowerBallUntilTheNextSummary) {
  ApplicationTest test;
  MainForm& form = test.start();
  test.platform.boxes.answers = {MessageBox::Answer::yes};
  test.press("Command7");
  EXPECT_EQ(visibleGameFrames(form.frames), "Frame6 ");
  EXPECT_THAT(itemsOf(form.summary.List2), SizeIs(15));
  EXPECT_EQ(form.summary.List2.items()[0], " 12-28-2026    41 42 43 44 45   06");
  EXPECT_EQ(form.search.havePlayed.numbers[0].caption(), "41");
  EXPECT_THAT(itemsOf(form.search.twoThree.List8), SizeIs(120));
  test.press("Command48");
  EXPECT_NE(test.application.find("Form3"), nullptr);
  test.press("Command7");
  EXPECT_EQ(visibleGameFrames(form.frames), "Frame4 ");
}

TEST(DoublePlay, LeavesNothingOfMegaMillionsBehind) {
  ApplicationTest test;
  MainForm& form = test.start();
  test.press("mnuMegaMillions");
  test.platform.boxes.answers = {MessageBox::Answer::yes};
  test.press("mnuPowerBall");
  EXPECT_EQ(form.summary.List1.items()[0], " 12-28-2026    01 02 03 04 05   01  *  40");
  EXPECT_EQ(form.summary.Label16.caption(), "PowerBall Double Play Display");
  EXPECT_EQ(form.bar.Command48.caption(), "PowerBall Play Selection");
  EXPECT_EQ(form.search.havePlayedPlays.Combo8.items().size(), 2U);
}

TEST(Windows, OneSelectionWindowAGameAndTheMainWindowEndsEverything) {
  ApplicationTest test;
  const MainForm& form = test.start();
  test.press("mnuPowerBall3");
  test.press("mnuMegaMillions3");
  EXPECT_EQ(test.application.windows().size(), 2U) << "the other game's entry is disabled";
  test.press("Command4");
  test.press("mnuMegaMillions3");
  test.press("Command48");
  test.press("mnuAbout");
  test.platform.events.clear();
  test.application.close(form);
  EXPECT_THAT(test.platform.events,
              ElementsAre("close frmAbout", "close Form5", "close Form3", "close Form1", "end"));
}

TEST(Windows, ClosingTheSplashBeforeItsTimerEndsTheProgram) {
  ApplicationTest early;
  early.application.showSplash();
  early.application.close(*early.application.find("frmSplash"));
  early.application.splashTimer();
  EXPECT_THAT(early.platform.events, ElementsAre("open frmSplash", "close frmSplash", "end"));

  ApplicationTest test;
  test.application.showSplash();
  test.application.splashTimer();
  EXPECT_THAT(test.platform.events, ElementsAre("open frmSplash", "open Form1", "close frmSplash"));
}

TEST(Menus, LeadWhereTheySay) {
  ApplicationTest test;
  MainForm& form = test.start();
  test.press("munSearches");
  EXPECT_EQ(form.bar.SSTab1.tab() * 10 + form.bar.SSTab2.tab(), 10);
  test.press("mnuWinnings");
  EXPECT_EQ(form.bar.SSTab1.tab() * 10 + form.bar.SSTab3.tab(), 21);
  test.press("mnuHelp");
  EXPECT_EQ(test.platform.boxes.only(), " Tallywick Software  | Please...,   Press  'F1'  for Help\r\n");
  test.press("mnuGameInfo");
  EXPECT_EQ(test.platform.events.back(), "page https://example.org/");
  test.press("mnuQZRHelp");
  EXPECT_THAT(test.platform.boxes.shown.back().text, testing::HasSubstr("is not set"));
}

TEST(SystemInformation, IsFoundByTwoKeysOrReportedAsMissing) {
  ApplicationTest test;
  test.start();
  test.press("mnuAbout");
  const auto pressed = [&] {
    click(*test.application.find("frmAbout")->find("cmdSysInfo"));
    return test.platform.starter.started.empty() ? "" : test.platform.starter.started.back().program;
  };
  EXPECT_EQ(pressed(), "");
  EXPECT_EQ(test.platform.boxes.shown.back().text, "System Information Is Unavailable At This Time");
  test.platform.registry[R"(SOFTWARE\Microsoft\Shared Tools Location:MSINFO)"] = R"(C:\Shared)";
  EXPECT_EQ(pressed(), "") << "the file does not stand";
  test.platform.existingFile = R"(C:\Shared\MSINFO32.EXE)";
  EXPECT_EQ(pressed(), R"(C:\Shared\MSINFO32.EXE)");
  test.platform.registry[R"(SOFTWARE\Microsoft\Shared Tools\MSINFO:PATH)"] = R"(C:\Info\msinfo32.exe)";
  EXPECT_EQ(pressed(), R"(C:\Info\msinfo32.exe)");
}

TEST(Recovery, RunsBeforeAnythingIsRead) {
  ApplicationTest test;
  const std::string folder = "QzrNumbers/QZR6PWR/";
  test.scratch.write(folder + "QZRNUM6.Dat.tw~", test::dailyDraws(120, "\"2\"", 2030));
  test.scratch.write(folder + "TALLYWICK.JNL", "tallywick-journal 1\nQZRNUM6.Dat\n/\n");
  const MainForm& form = test.start();
  EXPECT_EQ(form.summary.List1.items()[0].substr(0, 11), " 12-28-2030");

  test.scratch.write(folder + "QZRNUM6.Dat.tw~", test::dailyDraws(120, "\"2\"", 2040));
  test.scratch.write(folder + "TALLYWICK.JNL", "tallywick-journal 1\nQZRNUM6.Dat\n/\n");
  test.press("Command7");
  EXPECT_EQ(form.summary.List1.items()[0].substr(0, 11), " 12-28-2040") << "left by another program since";
}

}  // namespace
}  // namespace tallywick
