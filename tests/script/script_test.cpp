// The text protocol: what each line prints, and which lines are refused.
#include "support/record_book.h"
#include "ui/script/script_run.h"

#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::script {
namespace {

/// What a script prints on a complete record book; after "!" what is wrong about it.
std::string outputOf(const std::string& script) {
  const test::ScratchFolder scratch;
  test::writeRecordBook(scratch);
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

TEST(Script, ShowPrintsEachTypeWithItsOwnKeysInOrder) {
  EXPECT_EQ(
      outputOf("show Command48 Label17 SSTab2 Frame11 Form1\n"),
      R"({"name":"Command48","type":"button","caption":"PowerBall Play Selection","backColor":"buttonFace",)"
      R"("visible":true,"enabled":true,"toolTip":"PowerBall Play Selection"})"
      "\n"
      R"({"name":"Label17","type":"label","caption":"Previous Amount Draws:","visible":true})"
      "\n"
      R"({"name":"SSTab2","type":"tabs","tab":0})"
      "\n"
      R"({"name":"Frame11","type":"frame","visible":false})"
      "\n"
      R"({"name":"Form1","type":"window","title":"Tallywick"})"
      "\n");
  EXPECT_EQ(
      outputOf("show List17 Combo8 Image1 ProgressBar1 Option1 mnuAbout StatusBar1\n"),
      R"({"name":"List17","type":"list","items":["  12-30-2026      01  02  03  50  51  20"],"visible":true})"
      "\n"
      R"({"name":"Combo8","type":"combo","text":" 12-28-2026    01 02 03 50 51   20","items":[)"
      R"(" 12-28-2026    01 02 03 50 51   20"," 12-27-2026    50 51 52 53 54   20"],"visible":true})"
      "\n"
      R"({"name":"Image1","type":"image","picture":""})"
      "\n"
      R"({"name":"ProgressBar1","type":"progress","value":0,"visible":false})"
      "\n"
      R"({"name":"Option1","type":"option","value":false,"visible":true})"
      "\n"
      R"({"name":"mnuAbout","type":"menu","caption":"About:   Tallywick Software","enabled":true})"
      "\n"
      R"({"name":"StatusBar1","type":"status","panels":["","",""]})"
      "\n");
}

TEST(Script, BoxesAreAnsweredFromTheQueueAndWithNoWithoutOne) {
  const auto box = [](const char* answer) {
    return std::string(R"({"messageBox":{"text":"Display PowerBall Double Play Information  ?",)") +
           R"("title":"TALLYWICK SOFTWARE","icon":"question","buttons":"yesNo","answer":")" + answer +
           "\"}}\n";
  };
  EXPECT_EQ(
      outputOf("answer yes\nclick Command7\nprint Label16\nclick Command7\nprint Label16\n"),
      box("yes") + "PowerBall Double Play Display\n" + box("no") + "Your Play & Winning Lotto Ticket(s):\n");
}

TEST(Script, WindowsOpenCloseAndAreNamed) {
  EXPECT_EQ(outputOf("# a remark\n\nclick Command48\r\nclick Form3.07\nwindows\nclose Form3\nwindows\nclick "
                     "mnuExit\nbad"),
            "{\"windows\":[\"Form1\",\"Form3\"]}\n{\"windows\":[\"Form1\"]}\n");
}

TEST(Script, ChoosesTypesAndClicks) {
  EXPECT_EQ(
      outputOf(
          "choose Combo4 1\nprint Combo4\ntype Combo4  x y\nprint Combo4\nclick Command24\nchoose SSTab1 3\n"
          "click Command8\nshow SSTab1\n"),
      " 12-27-2026    02 03 04 05 06   02\n x y\n{\"notClickable\":\"Command24\"}\n"
      "{\"name\":\"SSTab1\",\"type\":\"tabs\",\"tab\":0}\n");
}

TEST(Script, ALineThatCannotBeUnderstoodIsNumbered) {
  for (const auto& [line, complaint] : std::initializer_list<std::pair<const char*, const char*>>{
           {"jump", "\"jump\" is no command"},
           {"click Command999", "Form1 has no control \"Command999\""},
           {"click Form3.07", "no window \"Form3\" is open"},
           {"click List1", "List1 cannot be clicked"},
           {"choose Combo4 120", "there are 120 items"},
           {"choose Combo4 x", "choose takes a name and an index from 0"},
           {"windows please", "windows stands alone"},
           {"now 02-30-2026 12:00:00", "now takes MM-DD-YYYY HH:MM:SS"},
           {"now 1-1-2026 12:00:00", "now takes MM-DD-YYYY HH:MM:SS"},
           {"answer maybe", "answer takes yes or no"},
           {"show", "a name is missing"}}) {
    EXPECT_EQ(outputOf(std::string("windows\n") + line),
              std::string("{\"windows\":[\"Form1\"]}\n!line 2: ") + complaint);
  }
}

}  // namespace
}  // namespace tallywick::script
