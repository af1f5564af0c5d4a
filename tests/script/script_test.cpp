// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that a script may not have.
#include "support/record_book.h"
#include "ui/script/script_program.h"
#include "ui/script/script_run.h"

#include <array>
#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::script {
namespace {

/// What a script prints on a complete record book; after "!" what is wrong about it.
std::string outputOf(const std::string& script, std::string_view savedTexts = "") {
  const test::ScratchFolder scratch;
  test::writeRecordBook(scratch);
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR9.Sel", savedTexts);
  std::ostringstream out;
  ScriptPlatform platform(out, scratch.folder());
  SettableClock clock;
  MixingGenerator random(1);
  Application application({scratch.folder(), {}, clock, random, platform, {}});
  application.showMainWindow();
  std::istringstream lines(script);
  try {
    ScriptRun(application, platform, clock, out).run(lines);
  } catch (const BadLine& error) {
    out << "!" << error.what();
  }
  return out.str();
}

TEST(Script, TextsThatAreNotUtf8AreShownAsWindows1252) {
  const std::string texts =
      "Andr\xE9 \x80\x92\r\nAndr\xC3\xA9\r\n\xC0\xAF\r\n\xED\xA0\x80\r\n\xFF\r\n\xF0\x9F\x8D\x80";
  EXPECT_EQ(outputOf("click mnuPowerBall3\nprint Form3.List1\nshow Form3.List1\n", texts),
            " André €’\n André\n À¯\n í\u00A0€\n ÿ\n 🍀\n"
            R"({"name":"List1","type":"list","items":[" André €’"," André"," À¯"," í)"
            "\u00A0"
            R"(€"," ÿ"," 🍀"],"visible":true})"
            "\n");
}

TEST(Script, ALineThatCannotBeUnderstoodIsNumbered) {
  for (const auto& [line, complaint] : std::initializer_list<std::pair<const char*, const char*>>{
           {"jump", "\"jump\" is not a command"},
           {"click Command999", "Form1 has no control \"Command999\""},
           {"click Form3.07", "no window \"Form3\" is open"},
           {"click List1", "List1 cannot be clicked"},
           {"choose Combo4 120", "there are 120 items"},
           {"choose SSTab1 4", "there is no such tab"},
           {"choose SSTab2 4", "there is no such tab"},
           {"choose SSTab3 2", "there is no such tab"},
           {"choose Combo4 x", "choose takes a name and an index from 0"},
           {"windows please", "windows takes no argument"},
           {"now 02-30-2026 12:00:00", "now takes MM-DD-YYYY HH:MM:SS"},
           {"now 1-1-2026 12:00:00", "now takes MM-DD-YYYY HH:MM:SS"},
           {"answer maybe", "answer takes yes or no"},
           {"show", "a name is missing"}}) {
    EXPECT_EQ(outputOf(std::string("windows\r\n") + line),
              std::string("{\"windows\":[\"Form1\"]}\n!line 2: ") + complaint);
  }
}

TEST(Program, EndsWithTwoWhereItsFolderOrItsSettingsAreNoUse) {
  const test::ScratchFolder scratch;
  const auto complaintOn = [](std::string folder) {
    std::string name = "tallywick-script";
    std::string option = "--folder";
    std::array<char*, 3> arguments = {name.data(), option.data(), folder.data()};
    testing::internal::CaptureStderr();
    EXPECT_EQ(runScriptProgram(3, arguments.data()), 2);
    return testing::internal::GetCapturedStderr();
  };
  const std::string nowhere = (scratch.root() / "nowhere").string();
  EXPECT_EQ(complaintOn(nowhere), "tallywick-script: there is no record book in " + nowhere + "\n");
  scratch.write("tallywick.ini", "tls=off\n[more]\n");
  EXPECT_EQ(complaintOn(scratch.root().string()),
            "tallywick-script: " + (scratch.root() / "tallywick.ini").string() +
                ", line 2: there are no sections in this file\n");
}

}  // namespace
}  // namespace tallywick::script
