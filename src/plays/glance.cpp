// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/glance.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/draws.h"
#include "core/eras.h"
#include "core/text.h"
#include "core/words.h"
#include "plays/judged_plays.h"
#include "plays/play_table.h"

#include <algorithm>
#include <exception>

namespace tallywick {

namespace {

/// The day of the draw; none where it has none, or cannot be read.
std::optional<Day> addNewest(Glance& glance, const GameInfo& game, const DataFolder& folder) {
  try {
    SequentialReader reader(folder, inFolder(game, drawsFile), SequentialReader::Reading::inPieces);
    if (reader.atEnd()) {
      glance.newest.tip = join("There is no draw of ", game.name, " in the record book yet.");
      return std::nullopt;
    }
    const Draw draw = drawOf(reader.record<drawFields>());
    glance.newest.text = weekdayDate(draw.displayDate());
    Glance::Balls& balls = glance.balls.emplace();
    std::ranges::transform(draw.white, balls.white.begin(), trimmed);
    balls.extra = trimmed(draw.extra);
    glance.newest.tip = join("The newest draw of ", game.name, " in the record book.");
    return draw.drawnOn();
  } catch (const std::exception& error) {
    glance.newest.tip = join("The draws cannot be read: ", error.what());
    return std::nullopt;
  }
}

/// The draws of today are not missed yet.
void addMissing(Glance& glance, const GameInfo& game, Day newest, Day today) {
  const std::vector<Day> missing = drawDays(game.game, newest + 1, today - 1);
  if (missing.empty()) return;
  std::string first = weekdayDate(missing.front());
  first.erase(first.rfind('-'));
  const std::size_t more = missing.size() - 1;
  glance.missing.text =
      more == 0 ? join(first, " is missing") : join(first, " and ", numberWord(more), " more are missing");
  glance.missing.tip = join("Draws of ", game.name, " that have taken place and are not in the record book.");
}

std::optional<Day> addNext(Glance& glance, const GameInfo& game, std::optional<Day> newest,
                           const Clock* clock) {
  const std::optional<Day> today = clock != nullptr ? parseDay(clock->date()) : std::nullopt;
  std::optional<Day> last = newest;
  if (today) {
    const Day drawn = lastDrawnDay(clock->date(), clock->time());
    last = newest ? std::max(*newest, drawn) : drawn;
    if (newest) addMissing(glance, game, *newest, *today);
    if (newest && drawDayAfter(game.game, *newest) <= drawn) {
      glance.newest.tip += " Newer draws have taken place; Update looks for them.";
    }
  }
  if (!last) {
    glance.next.tip = "The next draw is not known while no draw is.";
    return std::nullopt;
  }
  const Day next = drawDayAfter(game.game, *last);
  glance.next.text = join(next == today ? "today, " : "", weekdayDate(next));
  glance.next.tip = join("The day of the next draw of ", game.name, ".");
  return next;
}

void addPlays(Glance& glance, const Judgement& judgement, std::optional<Day> next) {
  std::size_t all = 0;
  std::size_t forNext = 0;
  std::size_t drawn = 0;
  std::size_t won = 0;
  std::size_t wonDoublePlay = 0;
  for (const JudgedPlay& play : judgement.plays) {
    if (play.state == DrawState::waiting) {
      ++all;
      if (play.day == next) ++forNext;
    }
    if (play.state == DrawState::drawn) ++drawn;
    if (play.match.wins()) {
      ++won;
    } else if (winsDoublePlay(play)) {
      ++wonDoublePlay;
    }
  }
  glance.waiting.text = join(forNext == 0 ? "no plays" : inFigures(forNext, "play"),
                             forNext == all ? "" : join(" (", std::to_string(all), " in all)"));
  glance.waiting.tip = "How many of your plays wait for the next draw";
  glance.waiting.tip += forNext == all ? "." : ", and in all.";
  glance.wins.text = drawn == 0 ? "none yet"
                     : won == 0 ? join(std::to_string(drawn), ", none won")
                                : join(std::to_string(drawn), ", of which ", std::to_string(won), " won");
  if (wonDoublePlay > 0)
    glance.wins.text += join(" (", std::to_string(wonDoublePlay), " more by Double Play)");
  glance.wins.tip =
      "How many of your plays were drawn, and how many of them won in the draw of their own day.";
  for (const std::string& sentence : tornSentences(judgement)) {
    for (Glance::Part* part : {&glance.waiting, &glance.wins}) part->tip += join(" ", sentence);
  }
}

}  // namespace

Glance glanceAt(const GameInfo& game, const DataFolder& folder, PlayJudge& judge, const Clock* clock) {
  Glance glance;
  const std::optional<Day> newest = addNewest(glance, game, folder);
  const std::optional<Day> next = addNext(glance, game, newest, clock);
  try {
    addPlays(glance, judge.plays(game)->judgement, next);
  } catch (const std::exception& error) {
    glance.waiting.tip = glance.wins.tip = join("The plays cannot be judged: ", error.what());
  }
  return glance;
}

}  // namespace tallywick
