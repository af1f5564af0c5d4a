// Real draws from public exports: what their quirks become, what is refused, what is told.
#include "core/draws.h"
#include "core/plays.h"
#include "setup/csv_table.h"
#include "setup/public_draws.h"
#include "setup/records.h"
#include "setup/setup_program.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::setup {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* powerBallHeader = "Draw Date,Winning Numbers,Multiplier,double_play_winning_numbers\n";

/// The records that an export becomes, and after "!" its refused lines.
std::string imported(Game game, const std::string& csv) {
  const ImportedDraws draws = importDraws(game, CsvTable(csv));
  std::string text = drawsText(draws.draws);
  for (const RefusedRow& row : draws.refused) text += "!" + std::to_string(row.line) + " " + row.reason;
  return text;
}

TEST(Import, TheFormsOfAnExportMakeNoDifference) {
  const std::string record = R"("01","06","2018","12","29","30","33","61","26","3")"
                             "\r\n";
  for (const char* csv :
       {"Draw Date,Winning Numbers,Multiplier\n01/06/2018,12 61 30 29 33 26,3\n",
        "\"Draw Date\",\"Winning Numbers\",\"Multiplier\"\r\n\"01/06/2018\",\"12 61 30 29 33 26\",\"03\"\r\n",
        "\xEF\xBB\xBFMULTIPLIER,draw_date,Winning Numbers\n03,1/6/2018, 12  61 30 29 33 26",
        "Winning Numbers,note,Draw Date,Multiplier\n\n12 61 30 29 33 26,\"a, "
        "\"\"b\"\"\nc\",01/06/2018,3\n"}) {
    EXPECT_EQ(imported(Game::powerBall, csv), record) << csv;
  }
  EXPECT_EQ(imported(Game::megaMillions,
                     "Draw Date,Winning Numbers,Mega Ball,Multiplier\n"
                     "09/25/2020,9 20 36 48 67,05,\n09/29/2020,14 39 43 44 67,19,03\n"),
            "\"09\",\"29\",\"2020\",\"14\",\"39\",\"43\",\"44\",\"67\",\"19\",\"3\"\r\n"
            "\"09\",\"25\",\"2020\",\"09\",\"20\",\"36\",\"48\",\"67\",\"05\",\"1\"\r\n");
}

TEST(Import, RowsThatHoldNoDrawAreRefusedWithLineAndReason) {
  const std::string good = "06/10/2026,01 02 03 04 05 06,2,11 12 13 14 15 16\n";
  for (const auto& [row, refused] : std::initializer_list<std::pair<const char*, const char*>>{
           {"06/31/2026,01 02 03 04 05 06,2,", "!3 \"06/31/2026\" is no date (MM/DD/YYYY)"},
           {"257/01/2026,01 02 03 04 05 06,2,", "!3 \"257/01/2026\" is no date (MM/DD/YYYY)"},
           {"06/13/2026,01 02 03 04 05,2,", "!3 5 numbers instead of 6"},
           {"06/13/2026,01 02 03 04 70 06,2,", "!3 the white ball 70 is not from 1 to 69"},
           {"01/04/2012,01 02 03 04 60 06,2,", "!3 the white ball 60 is not from 1 to 59"},
           {"06/13/2026,01 02 03 04 05 27,2,", "!3 the extra ball 27 is not from 1 to 26"},
           {"06/13/2026,01 02 03 04 04 06,2,", "!3 the white ball 4 stands twice"},
           {"06/13/2026,01 02 x 04 05 06,2,", "!3 \"x\" is no number"},
           {"06/13/2026,01 02 03 04 05 06,2,1 2 3", "!3 3 numbers instead of 6"},
           {"06/10/2026,11 12 13 14 15 06,2,", "!3 a second row for 06-10-2026"},
           {"06/10/1990,01 02 03 04 05 06,2,", "!3 the game was not drawn yet on 06-10-1990"}}) {
    const std::string text = imported(Game::powerBall, powerBallHeader + good + row + "\n");
    EXPECT_EQ(text.substr(text.find('!')), refused);
    EXPECT_THAT(text, HasSubstr("\"06\",\"10\",\"2026\"")) << "the good row stays";
  }
}

/// Runs the program; what it printed.
std::string run(std::vector<std::string> arguments, int expected = 0) {
  arguments.insert(arguments.begin(), "tallywick-setup");
  std::vector<const char*> words;
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  std::ostringstream out;
  std::ostringstream errors;
  EXPECT_EQ(runSetup(static_cast<int>(words.size()), words.data(), out, errors), expected) << errors.str();
  return out.str() + errors.str();
}

TEST(Setup, ForceDrawsReplacesDrawsAndAmountsAndLeavesPlaysAlone) {
  const test::ScratchFolder scratch;
  const std::string folder = (scratch.root() / "book").string();
  run({folder, "--now", "11-21-2026 12:00:00"});
  const auto before = scratch.snapshot();
  EXPECT_THAT(run({folder}, 1), HasSubstr("already holds plays; nothing was changed"));
  EXPECT_EQ(scratch.snapshot(), before);

  scratch.write("powerball.csv",
                powerBallHeader + std::string("06/10/2026,01 02 03 04 05 06,2,11 12 13 14 15 16\n"));
  scratch.write("amounts.csv", "Draw Date,Amount,Mark Count\n06/10/2026,\"1,500\",2\n");
  run({folder, "--force-draws", "--powerball", (scratch.root() / "powerball.csv").string(),
       "--powerball-amounts", (scratch.root() / "amounts.csv").string()});
  const auto after = scratch.snapshot();
  std::vector<std::string> changed;
  for (const auto& [name, text] : after) {
    if (before.contains(name) && before.at(name) != text) changed.push_back(name.substr(name.rfind('/') + 1));
  }
  EXPECT_THAT(changed,
              ElementsAre("QZRNUM6.Dat", "QZRNUM62.Dat", "QZRNUM72.Dat", "QzrPwr.Win", "README.txt"));
  EXPECT_EQ(after.at("book/QzrNumbers/QZR6PWR/QzrPwr.Win"),
            "\"06\",\"10\",\"2026\",\"1,500\",\"2\"\r\n\"06\",\"10\",\"2026\",\"1,500\",\"2\"\r\n");
  EXPECT_THAT(after.at("book/README.txt"), HasSubstr("Mega Millions: draws and amounts left as they were"));
}

TEST(Setup, ASampleFolderIsRepeatableAndHasWhatTheDisplaysRead) {
  const test::ScratchFolder scratch;
  for (const char* name : {"a", "b"}) {
    run({(scratch.root() / name).string(), "--seed", "7", "--now", "11-21-2026 12:00:00"});
  }
  const auto files = scratch.snapshot();
  for (const auto& [name, text] : files) {
    if (!name.starts_with("a/")) continue;
    EXPECT_EQ(files.at("b/" + name.substr(2)), text) << name;
  }
  const DataFolder folder(scratch.root() / "a");
  SequentialReader doublePlay(folder, "QzrNumbers/QZR6PWR/QZRNUM72.Dat");
  std::size_t draws = 0;
  forEachRecord<doublePlayFields>(doublePlay, [&](const auto&) { ++draws; });
  EXPECT_GT(draws, 100U);
  SequentialReader newest(folder, "QzrNumbers/QZR6PWR/QZRNUM6.Dat");
  EXPECT_EQ(drawOf(newest.record<drawFields>()).displayDate(), "11-18-2026");
  EXPECT_EQ(PlayFile(folder, "QzrNumbers/QZR6MEG/QZR6MEG1.Ply").plays().front().date, "11-24-2026");
  EXPECT_THAT(files.at("a/QZRNUM22.DTE"), testing::StartsWith(R"("01","01","2002","Tuesday","001","2")"));
  EXPECT_THAT(files.at("a/QZRNUM22.DTE"),
              testing::EndsWith("\r\n\"12\",\"31\",\"2050\",\"Saturday\",\"365\",\"6\"\r\n"));
}

TEST(Import, TheRealExportsAreTakenWholeAndLackWhatTheyLack) {
  const test::ScratchFolder scratch;
  const std::string real = TALLYWICK_REAL_DRAWS;
  if (!std::filesystem::exists(real + "/powerball.csv")) GTEST_SKIP() << "no real draws in " << real;
  const std::string told = run({(scratch.root() / "book").string(), "--powerball", real + "/powerball.csv",
                                "--mega-millions", real + "/mega-millions.csv"});
  EXPECT_THAT(told, testing::Not(HasSubstr("refused")));
  EXPECT_THAT(told,
              HasSubstr("missing: 06-28-2014 06-10-2017 04-28-2021 03-12-2022 04-09-2022 11-07-2022\n"));
  EXPECT_THAT(told, HasSubstr("missing: 10-18-2013\n"));
  EXPECT_THAT(scratch.read("book/QzrNumbers/QZR6MEG/QZR6MEG2.Ply"), IsEmpty());
}

}  // namespace
}  // namespace tallywick::setup
