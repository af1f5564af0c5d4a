// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of public exports: what their quirks become and what is refused.
#include "exports/export_rows.h"

#include "exports/csv_reader.h"
#include "exports/merge.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick::exports {
namespace {

using testing::HasSubstr;

constexpr const char* powerBallHeader = "Draw Date,Winning Numbers,Multiplier,double_play_winning_numbers\n";

constexpr Day today = dayOf(2026, 11, 21);

/// The main history that an export becomes, and after "!" its refused lines.
std::string imported(Game game, const std::string& csv) {
  CsvReader rows(csv);
  const ExportedDraws draws = readDraws(game, rows, today);
  std::string text = mergeInto(game, draws.draws, {}, {}).files.back().contents;
  for (const RefusedRow& row : draws.refused.first) text += "!" + std::to_string(row.line) + " " + row.reason;
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
           {"06/31/2026,01 02 03 04 05 06,2,", "!3 \"06/31/2026\" is not a date (MM/DD/YYYY)"},
           {"257/01/2026,01 02 03 04 05 06,2,", "!3 \"257/01/2026\" is not a date (MM/DD/YYYY)"},
           {"06/13/2026,01 02 03 04 05,2,", "!3 5 numbers instead of 6"},
           {"06/13/2026,01 02 03 04 100 06,2,", "!3 the white ball 100 is not from 1 to 99"},
           {"01/04/2012,01 02 03 04 60 06,2,", "!3 the white ball 60 is not from 1 to 59"},
           {"11/28/2026,01 02 03 04 05 06,2,", "!3 11-28-2026 is later than today, 11-21-2026"},
           {"\"06/13/2026,01 02 03 04 05 06",
            "!3 \"06/13/2026,01 02 03 04 05 06\\x0A\" is not a date (MM/DD/YYYY)"},
           {"06/13/2026,\"01 02 03 04 05 06", "!3 the row has an opening quote and no closing one"},
           {"06/13/2026,01 02 \x1B[31m 04 05 06,2,", "!3 \"\\x1B[31m\" is not a number"},
           {"06/13/2026,01 02 03 04 04 06,2,", "!3 the white ball 4 occurs twice"},
           {"06/13/2026,01 02 x 04 05 06,2,", "!3 \"x\" is not a number"},
           {"06/13/2026,01 02 03 04 05 06,2,1 2 3", "!3 3 numbers instead of 6"},
           {"06/10/2026,11 12 13 14 15 06,2,", "!3 a second row for 06-10-2026"},
           {"06/10/1990,01 02 03 04 05 06,2,", "!3 the game was not drawn yet on 06-10-1990"}}) {
    const std::string text = imported(Game::powerBall, powerBallHeader + good + row + "\n");
    EXPECT_EQ(text.substr(text.find('!')), refused);
    EXPECT_THAT(text, HasSubstr("\"06\",\"10\",\"2026\"")) << "the good row stays";
  }
}

TEST(Import, NumbersBeyondTheLastKnownRulesAreTakenWithANotice) {
  const std::string csv =
      powerBallHeader + std::string("06/13/2026,01 02 03 04 72 06,2,\n06/10/2026,01 02 03 04 05 06,2,\n");
  CsvReader rows(csv);
  const ExportedDraws draws = readDraws(Game::powerBall, rows, today);
  EXPECT_EQ(draws.draws.size(), 2U);
  EXPECT_THAT(draws.notices, testing::ElementsAre(HasSubstr("06-13-2026 has a number beyond 69 or 26")));
}

TEST(Import, AnExportOfTheOtherGameIsNamedAsSuch) {
  const std::pair<Game, std::string> cases[] = {
      {Game::megaMillions, powerBallHeader},
      {Game::powerBall, "Draw Date,Winning Numbers,Mega Ball,Multiplier\n"}};
  for (const auto& [game, csv] : cases) {
    CsvReader rows(csv);
    const std::string_view other = game == Game::powerBall ? "Mega Millions" : "PowerBall";
    try {
      readDraws(game, rows, today);
      ADD_FAILURE() << csv;
    } catch (const std::runtime_error& error) {
      EXPECT_THAT(error.what(), HasSubstr("the draws of " + std::string(other)));
    }
  }
}

TEST(Import, MemoryIsBoundedByTheLongestRow) {
  std::size_t left = 300;
  CsvReader rows([&](char* to, std::size_t) {
    const std::string row = left == 300 ? powerBallHeader : std::string(200, '\x1B') + ",1 2\n";
    return left-- > 0 ? row.copy(to, row.size()) : 0;
  });
  const RefusedRows refused = readDraws(Game::powerBall, rows, today).refused;
  EXPECT_EQ(refused.count, 299U);
  EXPECT_EQ(refused.first.size(), 20U);
  EXPECT_LE(refused.first.front().reason.size(), 80U);

  const std::string csv = std::string("Date\n\n") + std::string(CsvReader::longestRow + 1, 'x');
  CsvReader tooLong(csv);
  CsvReader::Row row;
  try {
    tooLong.next(row);
    ADD_FAILURE() << "it was read";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "line 3 is longer than 65536 characters");
  }
}

}  // namespace
}  // namespace tallywick::exports
