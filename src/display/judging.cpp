// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/judging.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/eras.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"
#include "core/winnings.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace tallywick {

namespace {

/// The plays of a day, by the day's number and as indices into the judgement.
using PlaysByDay = std::unordered_map<int, std::vector<std::size_t>>;

/// Gives each record of `text` to `use`. A cut record ends it and is reported.
template <std::size_t Count, typename Use>
void forEachWhole(std::string_view text, std::string_view file, Judgement& judgement, Use use) {
  SequentialReader reader(text, std::string(file));
  try {
    forEachRecord<Count>(reader, use);
  } catch (const RuntimeError& error) {
    if (!error.is(ErrorNumber::inputPastEnd)) throw;
    judgement.torn.push_back(error.where());
  }
}

void addPlays(const GameInfo& game, PlaySlot slot, std::string_view text, Judgement& judgement) {
  const WholePlays whole = wholePlays(text, playFileName(game, slot));
  if (!whole.torn.empty()) judgement.torn.push_back(whole.torn);
  for (std::size_t i = 0; i < whole.beforeTorn; ++i) {
    const Play& play = whole.plays[i];
    if (trimmed(play.date) == noPlayDate) continue;
    JudgedPlay& judged = judgement.plays.emplace_back();
    judged.file = slot;
    judged.record = i + 1;
    judged.date = play.date;
    judged.day = parseDay(trimmed(play.date));
    std::ranges::copy(play.main, judged.white.begin());
    judged.extra = play.extra;
  }
}

PlaysByDay byDay(const Judgement& judgement) {
  PlaysByDay found;
  for (std::size_t i = 0; i < judgement.plays.size(); ++i) {
    if (judgement.plays[i].day) found[judgement.plays[i].day->number()].push_back(i);
  }
  return found;
}

bool sameNumber(std::string_view left, std::string_view right) {
  return !trimmed(left).empty() && sameText(left, right);
}

Match matchOf(const JudgedPlay& play, const Draw& draw) {
  Match match;
  for (const std::string& number : play.white) {
    const bool drawn =
        std::ranges::any_of(draw.white, [&](std::string_view ball) { return sameNumber(ball, number); });
    if (drawn && std::ranges::find(match.whites, number) == match.whites.end())
      match.whites.push_back(number);
  }
  match.extra = sameNumber(draw.extra, play.extra);
  return match;
}

void judgeAgainst(const Draw& draw, Game game, JudgedPlay& play) {
  if (play.state == DrawState::drawn) return;
  play.state = DrawState::drawn;
  play.match = matchOf(play, draw);
  play.jackpot = play.match.extra && play.match.whites.size() == play.white.size();
  if (play.match.wins())
    play.prize = publishedPrize(game, *play.day, play.match.whites.size(), play.match.extra);
}

void judgeMainDraws(const GameInfo& game, std::string_view draws, const PlaysByDay& plays,
                    Judgement& judgement) {
  std::optional<Day> newest;
  forEachWhole<drawFields>(draws, drawsFile, judgement, [&](const Fields<drawFields>& record) {
    const Draw draw = drawOf(record);
    const std::optional<Day> day = draw.drawnOn();
    if (!day) return;
    newest = newest ? std::max(*newest, *day) : *day;
    const auto found = plays.find(day->number());
    if (found == plays.end()) return;
    for (std::size_t play : found->second) judgeAgainst(draw, game.game, judgement.plays[play]);
  });
  for (JudgedPlay& play : judgement.plays) {
    if (play.state == DrawState::unknown && play.day && newest && *play.day > *newest) {
      play.state = DrawState::waiting;
    }
  }
}

void judgeDoublePlays(std::string_view draws, const PlaysByDay& plays, Judgement& judgement) {
  forEachWhole<doublePlayFields>(draws, doublePlayFile, judgement,
                                 [&](const Fields<doublePlayFields>& record) {
                                   const Draw draw = doublePlayDrawOf(record);
                                   const std::optional<Day> day = draw.drawnOn();
                                   if (!day || !draw.hasNumbers()) return;
                                   const auto found = plays.find(day->number());
                                   if (found == plays.end()) return;
                                   for (std::size_t index : found->second) {
                                     JudgedPlay& play = judgement.plays[index];
                                     if (!play.doublePlay) play.doublePlay = matchOf(play, draw);
                                   }
                                 });
}

/// As in the summaries the last record of a date counts, and the file's last record is not used.
void addJackpots(const GameInfo& game, std::string_view amounts, const PlaysByDay& plays,
                 Judgement& judgement) {
  std::optional<Fields<winningsFields>> inHand;
  forEachWhole<winningsFields>(
      amounts, game.winningsFile, judgement, [&](const Fields<winningsFields>& next) {
        const std::optional<Fields<winningsFields>> record = std::exchange(inHand, next);
        if (!record) return;
        const auto& [month, day, year, amount, marks] = *record;
        const std::optional<Day> drawn = parseDay(month, day, year);
        const auto found = drawn ? plays.find(drawn->number()) : plays.end();
        if (found == plays.end()) return;
        for (std::size_t play : found->second) {
          if (judgement.plays[play].jackpot) judgement.plays[play].jackpotAmount = trimmed(amount);
        }
      });
}

}  // namespace

Judgement judge(const GameInfo& game, const JudgingTexts& texts) {
  Judgement judgement;
  addPlays(game, PlaySlot::committed, texts.committed, judgement);
  addPlays(game, PlaySlot::played, texts.played, judgement);
  const PlaysByDay plays = byDay(judgement);
  judgeMainDraws(game, texts.draws, plays, judgement);
  judgeDoublePlays(texts.doublePlays, plays, judgement);
  addJackpots(game, texts.amounts, plays, judgement);
  return judgement;
}

std::vector<std::string> filesJudged(const GameInfo& game) {
  std::vector<std::string> files = {playFilePath(game, PlaySlot::committed),
                                    playFilePath(game, PlaySlot::played), inFolder(game, drawsFile),
                                    inFolder(game, game.winningsFile)};
  if (game.game == Game::powerBall) files.push_back(inFolder(game, doublePlayFile));
  return files;
}

Judgement judgePlays(const GameInfo& game, const DataFolder& folder) {
  const SequentialReader committed = openPlays(folder, playFilePath(game, PlaySlot::committed));
  const SequentialReader played = openPlays(folder, playFilePath(game, PlaySlot::played));
  return judgePlays(game, folder, played.text(), committed.text());
}

Judgement judgePlays(const GameInfo& game, const DataFolder& folder, std::string_view played,
                     std::string_view committed) {
  const SequentialReader draws(folder, inFolder(game, drawsFile));
  const SequentialReader amounts = openPlays(folder, inFolder(game, game.winningsFile));
  std::optional<SequentialReader> doublePlays;
  if (game.game == Game::powerBall) doublePlays.emplace(folder, inFolder(game, doublePlayFile));
  return judge(game, {committed, played, draws.text(), doublePlays ? doublePlays->text() : std::string_view(),
                      amounts.text()});
}

}  // namespace tallywick
