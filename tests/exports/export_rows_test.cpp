// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of public exports: what their quirks become and what is refused.
#include "exports/export_rows.h"

#include "exports/csv_table.h"
#include "exports/record_texts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick::exports {
namespace {

using testing::HasSubstr;

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

}  // namespace
}  // namespace tallywick::exports
