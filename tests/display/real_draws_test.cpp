// The checks on real draws against a scoring that works with sets of integers and shares no code with theirs.
#include "core/text.h"
#include "display/summary.h"
#include "display/winning_tickets.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <sstream>

namespace tallywick {
namespace {

using test::itemsOf;
using testing::ElementsAreArray;

/// Month, day, year, five white balls, the extra ball.
using Row = std::vector<int>;

struct TestPlay {
  Row row;
  /// Whether numbers below ten have a leading zero.
  bool padded;
};

std::string dateOf(const Row& row, const char* separator) {
  return join(twoDigits(row[0]), separator, twoDigits(row[1]), separator, std::to_string(row[2]));
}

std::string recordOf(const Row& row, const char* dateSeparator, bool padded) {
  std::string text = dateOf(row, dateSeparator);
  for (auto number = row.begin() + 3; number != row.end(); ++number) {
    text += "," + (padded ? twoDigits(*number) : std::to_string(*number));
  }
  return text + ",1\r\n";
}

/// The draws of a public export, newest first.
std::vector<Row> drawsOf(const std::string& csv) {
  std::vector<Row> draws;
  std::ifstream file(std::string(TALLYWICK_REAL_DRAWS) + "/" + csv);
  std::string line;
  std::getline(file, line);
  while (std::getline(file, line)) {
    for (char& letter : line) letter = letter >= '0' && letter <= '9' ? letter : ' ';
    std::istringstream text(line);
    for (int& number : draws.emplace_back(9)) text >> number;
  }
  const auto day = [](const Row& row) { return row[2] * 10000 + row[0] * 100 + row[1]; };
  std::ranges::sort(draws, std::greater(), day);
  return draws;
}

/// Plays on the draws' days and on other days, with some of the draw's numbers.
std::vector<TestPlay> playsFor(const std::vector<Row>& draws) {
  std::mt19937 random(7);
  std::vector<TestPlay> plays;
  for (const Row& draw : draws) {
    TestPlay play = {draw, random() % 4 != 0};
    if (random() % 5 == 0) play.row[1] = draw[1] % 28 + 1;
    for (std::size_t i = 3; i < 9; ++i) {
      if (random() % 2 == 0) play.row[i] = static_cast<int>(random() % 60) + 1;
    }
    plays.push_back(play);
  }
  std::ranges::shuffle(plays, random);
  return plays;
}

bool isWinner(const TestPlay& play, const Row& draw) {
  // A number below ten that is written without its zero is another text.
  const auto comparable = [&](int number) { return play.padded || number > 9; };
  std::set<int> common;
  for (std::size_t i = 3; i < 8; ++i) {
    if (comparable(draw[i]) && std::count(&play.row[3], &play.row[8], draw[i]) > 0) common.insert(draw[i]);
  }
  return common.size() >= 3 || (comparable(draw[8]) && play.row[8] == draw[8]);
}

bool wonOnItsDay(const TestPlay& play, const std::vector<Row>& draws) {
  return std::ranges::any_of(draws, [&](const Row& draw) {
    return std::equal(draw.begin(), draw.begin() + 3, play.row.begin()) && isWinner(play, draw);
  });
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
  std::string history;
  for (const Row& draw : draws) history += recordOf(draw, ",", true);
  std::string played;
  std::vector<std::string> ordinals;
  std::vector<std::string> onTheirDay;
  for (std::size_t i = 0; i < plays.size(); ++i) {
    played += recordOf(plays[i].row, "-", plays[i].padded);
    const std::string heading = " " + dateOf(plays[i].row, "-") + "   Winning Ticket... ";
    if (isWinner(plays[i], draws[0])) ordinals.push_back(heading + "Play Number " + std::to_string(i + 1));
    if (wonOnItsDay(plays[i], draws)) onTheirDay.push_back(heading);
  }
  folder.write(files.draws, history);
  folder.write(inFolder(game, drawsFile), history);
  folder.write(files.plays, played);
  if (isPowerBall) folder.write(files.doublePlays, "1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1,1");
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
