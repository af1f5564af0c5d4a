// SPDX-License-Identifier: GPL-3.0-or-later
// What scripts cannot reach of the program: the splash, the registry, what closes with what, recovery.
#include "app/error_explained.h"
#include "app/file_trouble.h"
#include "app/game_pages.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "support/fake_platform.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::ApplicationTest;
using testing::ElementsAre;

TEST(ErrorExplained, SaysInWholeSentencesWhereAndWhatToDo) {
  for (const ErrorNumber number :
       {ErrorNumber::typeMismatch, ErrorNumber::internalError, ErrorNumber::deviceIoError,
        ErrorNumber::fileNotFound, ErrorNumber::diskFull, ErrorNumber::inputPastEnd,
        ErrorNumber::permissionDenied, ErrorNumber::pathFileAccess, ErrorNumber::pathNotFound}) {
    const std::string text = errorExplained(RuntimeError(number, "QZRNUM6.Dat, record 3"));
    EXPECT_THAT(text,
                testing::AllOf(testing::StartsWith("Where: QZRNUM6.Dat, record 3\n\nThis is the file of "
                                                   "the draws.\n\n"),
                               testing::HasSubstr(".\n\n"), testing::EndsWith(".")));
  }
  const auto explained = [](const std::string& where) {
    return errorExplained(RuntimeError(ErrorNumber::inputPastEnd, where));
  };
  EXPECT_THAT(explained("/b/QzrNumbers/QZR6PWR/QZRNUM62.Dat, record 3: field 4 of 10 is beyond the end"),
              testing::AllOf(testing::HasSubstr("the PowerBall file of the draws for searches and checks."),
                             testing::HasSubstr("press Update")));
  EXPECT_THAT(explained("/b/QzrNumbers/QZR6MEG/QZR6MEG2.Ply"),
              testing::AllOf(testing::HasSubstr("the Mega Millions file of your plays that were drawn."),
                             testing::HasSubstr("the newest dated copy"),
                             testing::Not(testing::HasSubstr("press Update"))));
}

TEST(FileTrouble, NamesTheTornLineAndTheWholeCopies) {
  const test::ScratchFolder scratch;
  const auto path = [](std::string_view name) { return inFolder(powerBall, name); };
  const std::string play = "\"11-18-2026\",\"01\",\"02\",\"03\",\"04\",\"05\",\"06\",\"5\"\r\n";
  EXPECT_FALSE(troubleOf(powerBall, scratch.folder())) << "a game without any file";
  scratch.write(path("QZR6PWR1.Ply"), play);
  scratch.write(path("QZR6PWR2.Ply"), join(play, "11-18-2026,01,02\r\n", play, play));
  scratch.write(path("QZR6PWR2 2026-11-20 120000.Ply"), play + play);
  scratch.write(path("QZR6PWR2 2026-11-21 120000.Ply"), play + "torn");
  const std::optional<FileTrouble> torn = troubleOf(powerBall, scratch.folder());
  ASSERT_TRUE(torn);
  EXPECT_EQ(torn->heading, "The file of your PowerBall plays (QZR6PWR2.Ply) is damaged in line 2:");
  EXPECT_THAT(torn->mending, testing::AllOf(testing::HasSubstr("11-18-2026,01,02\n"),
                                            testing::HasSubstr("QZR6PWR2 2026-11-20 120000.Ply (2 plays).")));
  try {
    const PlayFile plays(scratch.folder(), path("QZR6PWR2.Ply"));
    ADD_FAILURE() << "read as whole";
  } catch (const RuntimeError& error) {
    EXPECT_THAT(errorExplained(error), testing::HasSubstr("QZR6PWR2.Ply, line 2: it does not have 8 fields"));
  }
  // What looks odd and is whole: two records in a line, an empty last field at the end of the file.
  scratch.write(path("QZR6PWR2.Ply"),
                "11-18-2026,1,2,3,4,5,6,7,11-18-2026,1,2,3,4,5,6,7\r11-18-2026,1,2,3,4,5,6,");
  EXPECT_FALSE(troubleOf(powerBall, scratch.folder()));
}

TEST(FileTrouble, NamesTheMissingFilesOfAGameThatHasOthers) {
  const test::ScratchFolder scratch;
  for (const std::string_view name : {drawsFile, searchDrawsFile, megaMillions.winningsFile})
    scratch.write(inFolder(megaMillions, name), "");
  EXPECT_FALSE(troubleOf(megaMillions, scratch.folder()));
  std::filesystem::remove(scratch.folder().resolve(inFolder(megaMillions, drawsFile)));
  EXPECT_EQ(missingDrawFiles(megaMillions, scratch.folder()),
            "The file of the Mega Millions draws (QZRNUM6.Dat) is missing.");
  std::filesystem::remove(scratch.folder().resolve(inFolder(megaMillions, searchDrawsFile)));
  EXPECT_EQ(troubleOf(megaMillions, scratch.folder())->heading,
            "Files of the Mega Millions draws are missing: QZRNUM6.Dat and QZRNUM62.Dat.");
}

TEST(StartUp, SurvivesAFolderThatDoesNotStand) {
  MainForm form;
  startUp(form, DataFolder("/nonexistent/tallywick"));
  EXPECT_EQ(form.summary.Label17.caption(), "Previous Amount Draws:");
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
  const Form& splash = *early.application.find("frmSplash");
  EXPECT_EQ(splash.title() + static_cast<Label*>(splash.find("lblProductName"))->caption() +
                static_cast<Label*>(splash.find("lblVersion"))->caption(),
            "TallywickTallywickVersion " + std::string(programVersion()));
  EXPECT_NE(splash.find("Frame1"), nullptr);
  early.application.close(*early.application.find("frmSplash"));
  early.application.splashTimer();
  EXPECT_THAT(early.platform.events, ElementsAre("open frmSplash", "close frmSplash", "end"));

  ApplicationTest test;
  test.application.showSplash();
  test.application.splashTimer();
  EXPECT_THAT(test.platform.events, ElementsAre("open frmSplash", "open Form1", "close frmSplash"));
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
  EXPECT_EQ(pressed(), "") << "the file does not exist";
  test.platform.existingFile = R"(C:\Shared\MSINFO32.EXE)";
  EXPECT_EQ(pressed(), R"(C:\Shared\MSINFO32.EXE)");
  test.platform.registry[R"(SOFTWARE\Microsoft\Shared Tools\MSINFO:PATH)"] = R"(C:\Info\msinfo32.exe)";
  EXPECT_EQ(pressed(), R"(C:\Shared\MSINFO32.EXE)") << "the first key leads to no file";
  EXPECT_EQ(test.platform.boxes.shown.size(), 3U);
  test.platform.existingFile = R"(C:\Info\msinfo32.exe)";
  EXPECT_EQ(pressed(), R"(C:\Info\msinfo32.exe)");
}

TEST(Recovery, RunsBeforeAnyFileIsReadAndNamesWhatItCouldNotFinish) {
  ApplicationTest test;
  const std::string folder = "QzrNumbers/QZR6PWR/";
  const auto leaveHalfMade = [&](int year, std::string_view journal) {
    test.scratch.write(folder + "QZRNUM6.Dat.tw~", test::dailyDraws(120, "\"2\"", year));
    test.scratch.write(folder + "TALLYWICK.JNL", journal);
  };
  leaveHalfMade(2030, "tallywick-journal 1\nQZRNUM6.Dat\n/\n");
  MainForm& form = test.start();
  EXPECT_EQ(form.summary.List1.items()[0].substr(0, 11), " 12-28-2030");

  leaveHalfMade(2040, "tallywick-journal 1\nQZRNUM6.Dat\n/\n");
  click(form.search.twoThree.numbers[0]);
  EXPECT_TRUE(test.scratch.exists(folder + "TALLYWICK.JNL")) << "a mark has nothing to do with files";
  test.press("Command7");
  EXPECT_EQ(form.summary.List1.items()[0].substr(0, 11), " 12-28-2040") << "left by another program since";
  test.platform.boxes.shown.clear();

  leaveHalfMade(2050, "tallywick-journal 1\n../../QZRNUM22.DTE\n/\n");
  test.press("Command4");
  EXPECT_THAT(test.platform.boxes.only(), testing::StartsWith("Tallywick Software|A change of the files in"));
  EXPECT_THAT(test.platform.boxes.only(), testing::HasSubstr("TALLYWICK not carried out 2"));
}

}  // namespace
}  // namespace tallywick
