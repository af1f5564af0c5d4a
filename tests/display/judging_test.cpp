// SPDX-License-Identifier: GPL-3.0-or-later
// The judging of plays: states by true dates, matches, prizes by era, Double Play and damaged files.
#include "display/judging.h"

#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::records;
using testing::ElementsAre;

/// The newest draw is of January; text order would put December's behind it.
const std::string draws = records({"01,02,2016,10,20,30,40,50,06,2", "12,30,2015,01,02,03,04,05,07,2",
                                   "12,30,2015,21,22,23,24,25,26,2", "01,18,2012,01,02,03,04,05,06,1",
                                   "01,14,2012,01,02,03,04,05,06,1"});

/// "drawn 3+1 $100", "waiting", "unknown"; the Double Play follows behind a slash.
std::string verdictOn(const JudgedPlay& play) {
  const auto textOf = [](const Match& match) {
    return std::to_string(match.whites.size()) + "+" + (match.extra ? "1" : "0") +
           (match.wins() ? " wins" : "");
  };
  std::string text = play.state == DrawState::unknown ? "unknown" : "waiting";
  if (play.state == DrawState::drawn) text = textOf(play.match);
  if (play.prize) text += " $" + std::to_string(*play.prize);
  if (play.jackpot) text += " jackpot " + play.jackpotAmount;
  if (play.doublePlay) text += " / " + textOf(*play.doublePlay);
  return text;
}

std::string verdictOn(std::string_view play, const GameInfo& game = powerBall, std::string_view drawn = draws,
                      std::string_view doublePlays = {}) {
  const std::string amounts = records({"01,02,2016, 300 ,0", "12,30,2015,250,0", "12,26,2015,240,0"});
  const std::string text = records({play});
  const Judgement judgement = judge(game, {{}, text, drawn, doublePlays, amounts});
  return judgement.plays.empty() ? "passed over" : verdictOn(judgement.plays.front());
}

TEST(Judging, APlayMeetsTheDrawOfItsTrueDateAndThePrizesOfItsTime) {
  for (const auto& [play, verdict] : std::initializer_list<std::pair<const char*, const char*>>{
           {"12-30-2015,01,02,03,60,61,20,x", "3+0 wins $7"},
           {"12-30-2015,01,02,03,04,61,07,x", "4+1 wins $50000"},
           {"01-18-2012,01,02,03,04,61,06,x", "4+1 wins $10000"},
           {"01-14-2012,01,02,03,04,61,06,x", "4+1 wins"},
           {"12-30-2015,01,02,11,12,13,20,x", "2+0"},
           {"12-30-2015,11,12,13,14,15,07,x", "0+1 wins $4"},
           {"01-02-2016,50,40,30,20,10,06,x", "5+1 wins jackpot 300"},
           {"01-02-2016,50,40,30,20,10,05,x", "5+0 wins $1000000"},
           {"01-02-2016,10,10,20,10,20,05,x", "2+0"},
           {"1/2/2016,50,40,30,20,10,6,x", "5+0 wins $1000000"},
           {"12-30-2015,1,2,3,04,05,7,x", "2+0"},
           {"12-30-2016,01,02,03,04,05,07,x", "waiting"},
           {"01-03-2016,01,02,03,04,05,07,x", "waiting"},
           {"12-29-2015,01,02,03,04,05,07,x", "unknown"},
           {"02-30-2017,01,02,03,04,05,07,x", "unknown"},
           {",,,,,,,", "unknown"},
           {"11-11-1111,01,02,03,04,05,07,x", "passed over"}}) {
    EXPECT_EQ(verdictOn(play), verdict) << play;
  }
}

TEST(Judging, MegaMillionsHasPrizesOfItsOwn) {
  const std::string drawn = records(
      {"04,08,2025,01,02,03,04,05,06,", "04,04,2025,01,02,03,04,05,06,3", "10,27,2017,01,02,03,04,05,06,3"});
  EXPECT_EQ(verdictOn("04-08-2025,01,12,13,14,15,06,x", megaMillions, drawn), "1+1 wins $7");
  EXPECT_EQ(verdictOn("04-04-2025,01,12,13,14,15,06,x", megaMillions, drawn), "1+1 wins $4");
  EXPECT_EQ(verdictOn("10-27-2017,01,12,13,14,15,06,x", megaMillions, drawn), "1+1 wins");
  EXPECT_EQ(verdictOn("10-27-2017,01,12,13,14,15,06,x", megaMillions, ""), "unknown");
}

TEST(Judging, EveryPlayMeetsTheDoublePlayNumbersWhereThereAreSome) {
  const std::string doublePlays = records(
      {"01,02,2016,91,92,93,94,95,96,2,DP,10,11,12,13,14,06,1", "12,30,2015,91,92,93,94,95,96,2,DP,,,,,,,1"});
  const auto verdict = [&](const char* play) { return verdictOn(play, powerBall, draws, doublePlays); };
  EXPECT_EQ(verdict("01-02-2016,10,11,12,60,61,26,x"), "1+0 / 3+0 wins");
  EXPECT_EQ(verdict("12-30-2015,60,61,62,63,64,26,x"), "0+0");
}

TEST(Judging, ATornRecordEndsItsFileAndIsNamed) {
  const std::string committed = records({"01-09-2016,01,02,03,04,05,06,x"});
  const std::string played = records({"01-02-2016,10,20,30,60,61,26,x", "12-30-2015,01,02"});
  const Judgement judgement = judge(powerBall, {committed, played, draws, {}, {}});
  ASSERT_EQ(judgement.plays.size(), 2U);
  EXPECT_EQ(judgement.plays[0].file, PlaySlot::committed);
  EXPECT_EQ(verdictOn(judgement.plays[0]), "waiting");
  EXPECT_THAT(judgement.plays[1].match.whites, ElementsAre("10", "20", "30"));
  EXPECT_THAT(judgement.torn, ElementsAre("QZR6PWR2.Ply, record 2: field 4 of 8 is beyond the end"));
}

}  // namespace
}  // namespace tallywick
