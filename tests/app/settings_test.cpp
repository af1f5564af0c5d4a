// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file: what is written is read again, and what cannot be understood is named.
#include "settings/settings.h"

#include "app/data_folder_choice.h"
#include "app/started_program.h"
#include "core/os.h"
#include "core/program_run.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "support/host.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::ScratchFolder;
using test::setVariable;

#ifdef _WIN32
constexpr const char* dataVariable = "LOCALAPPDATA";
const std::string drive = "C:";
const std::string sortTool = "qzrsrt3.exe";
#else
constexpr const char* dataVariable = "XDG_DATA_HOME";
const std::string drive;
const std::string sortTool = "qzrsrt3";
#endif

TEST(Settings, ComeBackAsTheyWereWritten) {
  const ScratchFolder scratch;
  EXPECT_EQ(readSettings(scratch.folder()), Settings{});
  const Settings settings = {"127.0.0.1:2121",
                             Settings::Tls::required,
                             "https://example.org/?a=b;c=d, 'e' #f",
                             "",
                             Settings::Source::server,
                             "http://localhost:8000/powerball.csv",
                             "https://example.org/mega;millions.csv",
                             200,
                             505};
  writeSettings(scratch.folder(), settings);
  EXPECT_EQ(readSettings(scratch.folder()), settings);
  for (const char* value : {"a\"b", "a\nb"})
    EXPECT_THROW(writeSettings(scratch.folder(), {value, Settings::Tls::off, "", ""}), std::invalid_argument);
  EXPECT_EQ(readSettings(scratch.folder()), settings);
}

TEST(Settings, AreReadAsPeopleAndEditorsWriteThem) {
  const ScratchFolder scratch;
  scratch.write("TALLYWICK.INI",
                "\xEF\xBB\xBF; a remark\r\n\r\n\tserver = host # mine\r\nweb-site='a;\"b' ; x");
  EXPECT_EQ(readSettings(scratch.folder()).server, "host");
  EXPECT_EQ(readSettings(scratch.folder()).webSite, "a;\"b");
}

TEST(Settings, ComeFromTheServerOnlyWhereOneIsSet) {
  for (const auto& [text, source] : std::initializer_list<std::pair<const char*, Settings::Source>>{
           {"", Settings::Source::publicExports},
           {"server=\"\"\n", Settings::Source::publicExports},
           {"server=host\n", Settings::Source::server},
           {"server=127.0.0.1:2121\n", Settings::Source::publicExports},
           {"source=server\nserver=127.0.0.1:2121\n", Settings::Source::server},
           {"server=host\nsource=public\npowerball-draws=\"\"", Settings::Source::publicExports}}) {
    EXPECT_EQ(settingsFrom(text).source, source) << text;
    EXPECT_EQ(settingsFrom(text).powerBallDraws, powerBallExport);
  }
}

TEST(Settings, ALineThatCannotBeUnderstoodIsNamedRatherThanIgnored) {
  const ScratchFolder scratch;
  for (const auto& [text, complaint] : std::initializer_list<std::pair<const char*, const char*>>{
           {"tls=requird", "1: tls is \"requird\"; it must be off or required"},
           {"\nsource=ftp", "2: source is \"ftp\"; it must be public or server"},
           {"mega-millions-draws=file:///x",
            "1: mega-millions-draws is \"file:///x\"; it must be an address that begins with https://"},
           {"web-site=http://x/?a=1,2",
            "1: web-site has a value with a comma, a semicolon or a quote; put it between double quotes"},
           {"powerball-price=2.5",
            "1: the price of a play is \"2.5\"; it must be dollars and cents, such as 2 or 2.50"},
           {"server=a b", "1: server has a value with blanks; put it between double quotes"},
           {"server=\"a", "1: the value of server has no closing quote"},
           {"server=\"a\"b\"", "1: text follows the closing quote of server"},
           {"tls=off\nserver", "2: server has no value"},
           {"server= ; none\n", "1: server has no value"},
           {"servr=host", "1: there is no setting \"servr\""},
           {"a.server=host", "1: there is no setting \"a.server\""},
           {"[a]\nserver=host", "1: there are no sections in this file"},
           {"server=a\ntls=off\nserver=b", "3: server is set a second time"}}) {
    scratch.write(settingsFile, text);
    try {
      readSettings(scratch.folder());
      ADD_FAILURE() << text;
    } catch (const std::invalid_argument& error) {
      EXPECT_EQ(error.what(), join((scratch.root() / settingsFile).string(), ", line ", complaint));
    }
  }
}

TEST(DataFolderChoice, GoesFromTheCommandLineDownToTheUsersFolder) {
  const ScratchFolder scratch;
  const std::filesystem::path before = std::filesystem::current_path();
  setVariable(dataVariable, drive + "/users/data");
  setVariable("TALLYWICK_FOLDER", "");
  std::filesystem::current_path(scratch.root() / "QzrNumbers");
  EXPECT_EQ(chooseDataFolder(""), drive + "/users/data/tallywick");
  std::filesystem::current_path(scratch.root());
  EXPECT_EQ(chooseDataFolder(""), scratch.root());
  setVariable("TALLYWICK_FOLDER", drive + "/from/environment");
  EXPECT_EQ(chooseDataFolder(""), drive + "/from/environment");
  EXPECT_EQ(chooseDataFolder(drive + "/named"), drive + "/named");
  for (const char* name : {"TALLYWICK_FOLDER", dataVariable}) setVariable(name, "");
  std::filesystem::current_path(before);
}

TEST(DataFolderChoice, NeedsTheWorkingFolderForARelativeNameOnly) {
  if (!test::hasPosixFiles) GTEST_SKIP() << "a working folder cannot be removed here";
  namespace fs = std::filesystem;
  const fs::path before = fs::current_path();
  const ScratchFolder scratch;
  const fs::path removed = scratch.root() / "removed";
  fs::create_directory(removed);
  fs::current_path(removed);
  fs::remove(removed);
  EXPECT_EQ(chooseDataFolder("/named"), "/named");
  EXPECT_NO_THROW(chooseDataFolder(""));
  EXPECT_THROW(chooseDataFolder("named"), RuntimeError);
  fs::current_path(before);
}

TEST(ProgramRun, WhatEscapesAProgramBecomesAMessageAndAnExitCode) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(runToItsEnd("tallywick", [] { return 3; }), 3);
  EXPECT_EQ(runToItsEnd("tallywick", []() -> int { throw RuntimeError(ErrorNumber::diskFull, "file"); }), 1);
  EXPECT_EQ(runToItsEnd("tallywick", []() -> int { throw 7; }), 1);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "tallywick: Disk full: file\ntallywick: Internal error\n");
}

TEST(StartedProgram, TheSortToolOfAGameFolderIsNeverTheOneThatRuns) {
  const ScratchFolder scratch;
  constexpr const char* path =
      R"(C:\Program Files\TALLYWICK SOFTWARE\TALLYWICK\QZRNUMBERS\QZR6PWR\QZRSRT3.EXE)";
  struct Row {
    const char* way;
    std::filesystem::perms rights;
    const char* text;
  };
  using std::filesystem::perms;
  for (const Row& row : {Row{"the old tool had the right to run", perms::owner_all, "#!/bin/sh\nexit 0\n"},
                         Row{"every file may run on this file system", perms::all,
                             "\x7F"
                             "ELF"},
                         Row{"a program of Windows", perms(0644), "MZ"}}) {
    scratch.write(path, row.text);
    const auto tool = scratch.root() / "QzrNumbers" / "QZR6PWR" / "QZRSRT3.EXE";
    std::filesystem::permissions(tool, row.rights);
    const StartedProgram start = startedProgram(scratch.folder(), path, R"(C:\)");
    EXPECT_EQ(start.program, os::programFile().parent_path() / sortTool) << row.way;
    EXPECT_TRUE(std::filesystem::equivalent(start.argument, tool.parent_path())) << row.way;
    EXPECT_THROW(startedProgram(scratch.folder(), tool.string() + "x", ""), RuntimeError) << row.way;
  }
}

}  // namespace
}  // namespace tallywick
