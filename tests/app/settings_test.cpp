// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file: what is written is read again, and what cannot be understood is named.
#include "app/settings.h"

#include "app/data_folder_choice.h"
#include "app/program_start.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "support/scratch_folder.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::ScratchFolder;

TEST(Settings, ComeBackAsTheyWereWritten) {
  const ScratchFolder scratch;
  EXPECT_EQ(readSettings(scratch.folder()), Settings{});
  const Settings settings = {"127.0.0.1:2121", Settings::Tls::required, "https://example.org/?a=b&c=d#e", ""};
  writeSettings(scratch.folder(), settings);
  EXPECT_EQ(readSettings(scratch.folder()), settings);
  scratch.write("TALLYWICK.INI", "; a remark\r\nserver = host\r\n");
  EXPECT_EQ(readSettings(scratch.folder()).server, "host");
}

TEST(Settings, AMisspeltOneIsNamedRatherThanIgnored) {
  const ScratchFolder scratch;
  for (const auto& [text, complaint] : std::initializer_list<std::pair<const char*, const char*>>{
           {"tls=requird\n", "tallywick.ini: tls is \"requird\"; it can be off or required"},
           {"web-site=http://x/?a=1,2\n",
            "tallywick.ini: web-site has a value with blanks or commas; put it between double quotes"},
           {"servr=host\n", "tallywick.ini: there is no setting \"servr\""}}) {
    scratch.write(settingsFile, text);
    try {
      readSettings(scratch.folder());
      ADD_FAILURE() << text;
    } catch (const std::invalid_argument& error) {
      EXPECT_STREQ(error.what(), complaint);
    }
  }
  EXPECT_THROW(writeSettings(scratch.folder(), {"a\"b", Settings::Tls::off, "", ""}), std::invalid_argument);
}

TEST(DataFolderChoice, GoesFromTheCommandLineDownToTheUsersFolder) {
  const ScratchFolder scratch;
  const std::filesystem::path before = std::filesystem::current_path();
  ::setenv("XDG_DATA_HOME", "/users/data", 1);
  ::unsetenv("TALLYWICK_FOLDER");
  std::filesystem::current_path(scratch.root() / "QzrNumbers");
  EXPECT_EQ(chooseDataFolder(""), "/users/data/tallywick");
  std::filesystem::current_path(scratch.root());
  EXPECT_EQ(chooseDataFolder(""), scratch.root());
  ::setenv("TALLYWICK_FOLDER", "/from/environment", 1);
  EXPECT_EQ(chooseDataFolder(""), "/from/environment");
  EXPECT_EQ(chooseDataFolder("/named"), "/named");
  for (const char* name : {"TALLYWICK_FOLDER", "XDG_DATA_HOME"}) ::unsetenv(name);
  std::filesystem::current_path(before);
}

TEST(ProgramStart, TheSortToolOfAGameFolderIsNeverTheOneThatRuns) {
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
    const ProgramStart start = programStart(scratch.folder(), path, R"(C:\)");
    EXPECT_EQ(start.program, os::programFile().parent_path() / "qzrsrt3") << row.way;
    EXPECT_TRUE(std::filesystem::equivalent(start.argument, tool.parent_path())) << row.way;
    EXPECT_THROW(programStart(scratch.folder(), tool.string() + "x", ""), RuntimeError) << row.way;
  }
}

}  // namespace
}  // namespace tallywick
