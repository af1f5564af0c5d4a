// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/sample.h"

#include "core/eras.h"
#include "core/random.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <string_view>

namespace tallywick::setup {

namespace {

constexpr Day sampleBegin = dayOf(2010, 1, 1);

MixingGenerator generatorFor(Game game, std::uint64_t seed, std::string_view purpose) {
  MixingGenerator generator(seed);
  generator.seed(infoOf(game).code);
  generator.seed(purpose);
  return generator;
}

/// A number from 1 to `highest`.
int pick(RandomGenerator& generator, int highest) {
  return 1 + static_cast<int>(generator.next() * highest);
}

Balls pickBalls(RandomGenerator& generator, const Matrix& matrix) {
  Balls balls{};
  for (std::size_t drawn = 0; drawn < balls.white.size();) {
    const int number = pick(generator, matrix.white);
    const auto end = balls.white.begin() + static_cast<std::ptrdiff_t>(drawn);
    if (std::find(balls.white.begin(), end, number) == end) balls.white[drawn++] = number;
  }
  std::ranges::sort(balls.white);
  balls.extra = pick(generator, matrix.extra);
  return balls;
}

/// The multiplier is drawn from a set in which the small ones are more frequent.
std::string pickMultiplier(RandomGenerator& generator) {
  constexpr std::array multipliers = {"2", "2", "2", "2", "3", "3", "3", "4", "4", "5"};
  return multipliers[static_cast<std::size_t>(pick(generator, static_cast<int>(multipliers.size()))) - 1];
}

/// A play that shares `whites` white balls with the draw, and the extra ball or not.
Balls playLike(const Balls& drawn, std::size_t whites, bool extra, const Matrix& matrix,
               RandomGenerator& generator) {
  Balls play = drawn;
  for (std::size_t place = whites; place < play.white.size(); ++place) {
    do {
      play.white[place] = pick(generator, matrix.white);
    } while (std::ranges::count(play.white, play.white[place]) > 1 ||
             std::ranges::count(drawn.white, play.white[place]) > 0);
  }
  if (!extra) play.extra = drawn.extra % matrix.extra + 1;
  std::ranges::sort(play.white);
  return play;
}

/// What the plays of the newest draws have in common with them, newest draw first: white balls, extra ball.
struct Match {
  std::size_t draw;
  std::size_t whites;
  bool extra;
};
constexpr std::array matches = {Match{0, 1, false}, Match{0, 3, false}, Match{0, 0, false},
                                Match{1, 0, true},  Match{1, 2, false}, Match{2, 1, false},
                                Match{2, 4, false}, Match{3, 2, false}, Match{3, 1, false},
                                Match{4, 2, true},  Match{4, 0, false}, Match{5, 1, false}};

void addPlayed(Game game, GameBook& book, RandomGenerator& generator) {
  for (const Match& match : matches) {
    if (match.draw >= book.draws.size()) break;
    const DrawEntry& draw = book.draws[match.draw];
    const Matrix matrix = matrixOn(game, draw.day).value();
    book.played.push_back({draw.day, playLike(draw.balls, match.whites, match.extra, matrix, generator)});
  }
}

}  // namespace

std::vector<DrawEntry> sampleDraws(Game game, Day last, std::uint64_t seed) {
  MixingGenerator generator = generatorFor(game, seed, "draws");
  std::vector<DrawEntry> draws;
  for (Day day : drawDays(game, sampleBegin, last)) {
    const Matrix matrix = matrixOn(game, day).value();
    DrawEntry draw{day, pickBalls(generator, matrix), pickMultiplier(generator)};
    if (game == Game::powerBall && day >= doublePlayBegin) draw.doublePlay = pickBalls(generator, matrix);
    draws.push_back(std::move(draw));
  }
  std::ranges::reverse(draws);
  return draws;
}

std::vector<AmountEntry> sampleAmounts(Game game, const std::vector<DrawEntry>& draws, std::uint64_t seed) {
  MixingGenerator generator = generatorFor(game, seed, "amounts");
  const int base = wholeNumber<int>(infoOf(game).baseAmount).value();
  std::vector<AmountEntry> amounts;
  int amount = base;
  for (auto draw = draws.rbegin(); draw != draws.rend(); ++draw) {
    const bool won = generator.next() < 0.09;
    const int winners = won ? 1 + static_cast<int>(generator.next() < 0.1) : 0;
    amounts.push_back({draw->day, std::to_string(amount), winners});
    amount = won ? base : amount + std::max(2, amount / 12 + pick(generator, 4));
  }
  std::ranges::reverse(amounts);
  return amounts;
}

void addSamplePlays(Game game, GameBook& book, Day last, std::uint64_t seed) {
  MixingGenerator generator = generatorFor(game, seed, "plays");
  addPlayed(game, book, generator);
  const Matrix matrix = matrixOn(game, last).value();
  const std::array plays = {pickBalls(generator, matrix), pickBalls(generator, matrix),
                            pickBalls(generator, matrix)};
  Day day = last;
  for (int draw = 0; draw < 2; ++draw) {
    day = drawDayAfter(game, day);
    for (const Balls& balls : plays) book.committed.push_back({day, balls});
  }
  for (int text = 0; text < 4; ++text) book.savedTexts.push_back(pickBalls(generator, matrix));
}

}  // namespace tallywick::setup
