// The checks on real draws against a scoring that works with sets of integers and shares no code with theirs.
#include "display/summary.h"
#include "display/winning_tickets.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iomanip>
#include <random>
#include <set>
#include <sstream>
#include <tuple>

namespace tallywick {
namespace {

using test::itemsOf;
using testing::ElementsAreArray;

struct Six {
  int year;
  int month;
  int day;
  std::vector<int> numbers;  // the extra ball last
  /// A play only: whether its numbers have two digits.
  bool padded = true;

  auto date() const { return std::tie(year, month, day); }
  std::string number(std::size_t index) const { return two(numbers[index], padded); }
  std::string dateText(const char* separator) const {
    return two(month, true) + separator + two(day, true) + separator + std::to_string(year);
  }
  static std::string two(int number, bool padded) {
    std::ostringstream text;
    text << std::setw(padded ? 2 : 1) << std::setfill('0') << number;
    return text.str();
  }
};

/// The rows of a public export, newest first: the date, then the first six numbers behind it.
std::vector<Six> drawsOf(const std::string& csv) {
  std::vector<Six> draws;
  std::ifstream file(std::string(TALLYWICK_REAL_DRAWS) + "/" + csv);
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    for (char& letter : line) letter = letter >= '0' && letter <= '9' ? letter : ' ';
    std::istringstream text(line);
    Six draw{0, 0, 0, std::vector<int>(6)};
    text >> draw.month >> draw.day >> draw.year;
    for (int& number : draw.numbers) text >> number;
    draws.push_back(draw);
  }
  std::sort(draws.begin(), draws.end(), [](const Six& a, const Six& b) { return a.date() > b.date(); });
  return draws;
}

/// Plays on the draws' days and the days after them, with up to six of the draw's numbers.
std::vector<Six> playsFor(const std::vector<Six>& draws) {
  std::mt19937 random(7);
  std::vector<Six> plays;
  for (const Six& draw : draws) {
    Six play = draw;
    play.padded = random() % 4 != 0;
    if (random() % 5 == 0) play.day = play.day % 28 + 1;
    for (int& number : play.numbers) {
      if (random() % 2 == 0) number = static_cast<int>(random() % 60) + 1;
    }
    plays.push_back(play);
  }
  std::shuffle(plays.begin(), plays.end(), random);
  return plays;
}

bool isWinner(const Six& play, const Six& draw) {
  // A number below ten that is written without its zero is another text.
  const auto comparable = [&](int number) { return play.padded || number > 9; };
  std::set<int> common;
  for (std::size_t i = 0; i < 5; ++i) {
    const int ball = play.numbers[i];
    if (comparable(ball) && std::count(draw.numbers.begin(), draw.numbers.begin() + 5, ball) > 0)
      common.insert(ball);
  }
  return common.size() >= 3 || (comparable(play.numbers[5]) && play.numbers[5] == draw.numbers[5]);
}

bool wonOnItsDay(const Six& play, const std::vector<Six>& draws) {
  return std::ranges::any_of(
      draws, [&](const Six& draw) { return draw.date() == play.date() && isWinner(play, draw); });
}

std::string textOf(const std::vector<Six>& rows, const char* dateSeparator) {
  std::string text;
  for (const Six& row : rows) {
    text += row.dateText(dateSeparator);
    for (std::size_t i = 0; i < 6; ++i) text += "," + row.number(i);
    text += ",1\r\n";
  }
  return text;
}

struct RealDraws : testing::TestWithParam<const GameInfo*> {};

TEST_P(RealDraws, ChecksAgreeWithAnIndependentScoring) {
  const GameInfo& game = *GetParam();
  const bool isPowerBall = game.game == Game::powerBall;
  const auto draws = drawsOf(isPowerBall ? "powerball.csv" : "mega-millions.csv");
  if (draws.empty()) GTEST_SKIP() << "no real draws in " << TALLYWICK_REAL_DRAWS;
  const auto plays = playsFor(draws);
  const test::ScratchFolder folder;
  Form form("Form1");
  WinningsPage page(form);
  SummaryPage summary(form);
  const TicketFiles& files = isPowerBall ? powerBallTickets : megaMillionsTickets;
  folder.write(files.draws, textOf(draws, ","));
  folder.write(inFolder(game, drawsFile), textOf(draws, ","));
  folder.write(files.plays, textOf(plays, "-"));
  if (isPowerBall) folder.write(files.doublePlays, "1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1");

  std::vector<std::string> ordinals;
  std::vector<std::string> onTheirDay;
  for (std::size_t i = 0; i < plays.size(); ++i) {
    const Six& play = plays[i];
    const std::string heading = " " + play.dateText("-") + "   Winning Ticket... ";
    if (isWinner(play, draws.front())) ordinals.push_back(heading + "Play Number " + std::to_string(i + 1));
    if (wonOnItsDay(play, draws)) onTheirDay.push_back(heading);
  }
  EXPECT_GT(ordinals.size(), 10U);
  EXPECT_GT(onTheirDay.size(), plays.size() / 4);
  EXPECT_LT(onTheirDay.size(), plays.size());

  checkAgainstLatestDraw(page, folder.folder(), files);
  std::vector<std::string> headings;
  for (std::size_t i = 0; i < page.List11.items().size(); i += 3)
    headings.emplace_back(page.List11.items()[i]);
  EXPECT_THAT(headings, ElementsAreArray(ordinals));
  checkByDate(page, folder.folder(), files);
  EXPECT_THAT(itemsOf(page.List11), ElementsAreArray(onTheirDay));
  fillWinningPlays(summary, folder.folder(), game);
  EXPECT_EQ(summary.List2.items().size(), onTheirDay.size() - (wonOnItsDay(plays.back(), draws) ? 1 : 0));
}

INSTANTIATE_TEST_SUITE_P(Games, RealDraws, testing::Values(&powerBall, &megaMillions),
                         [](const auto& game) { return std::string(game.param->code); });

}  // namespace
}  // namespace tallywick
