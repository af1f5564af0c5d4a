// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/play_table.h"

#include "core/text.h"

#include <algorithm>
#include <map>

namespace tallywick {

namespace {

bool passes(const JudgedPlay& play, PlayFilter filter) {
  switch (filter) {
    case PlayFilter::waiting:
      return play.state == DrawState::waiting;
    case PlayFilter::drawn:
      return play.state == DrawState::drawn;
    case PlayFilter::won:
      return isWinner(play);
    case PlayFilter::all:
      break;
  }
  return true;
}

bool isNewer(const JudgedPlay& left, const JudgedPlay& right) {
  if (!left.day || !right.day) return left.day.has_value() && !right.day;
  return *left.day > *right.day;
}

/// The dates of the plays in that place, each once, as many as a line can show.
std::string datesOf(const Judgement& judgement, Misplaced misplaced) {
  constexpr std::size_t mostDates = 6;
  std::vector<std::string> dates;
  for (const JudgedPlay& play : judgement.plays) {
    if (misplacedOf(play) == misplaced && std::ranges::find(dates, play.date) == dates.end())
      dates.push_back(play.date);
  }
  std::string text;
  for (std::size_t i = 0; i < dates.size() && i < mostDates; ++i) text += join(i == 0 ? "" : ", ", dates[i]);
  return dates.size() > mostDates ? join(text, " …") : text;
}

void add(YearSums& sums, const YearSums& other) {
  sums.plays += other.plays;
  sums.waiting += other.waiting;
  sums.wins += other.wins;
  sums.jackpots += other.jackpots;
  sums.winsWithoutPrize += other.winsWithoutPrize;
  sums.doublePlayWins += other.doublePlayWins;
  sums.dollars += other.dollars;
  if (other.costInCents) sums.costInCents = sums.costInCents.value_or(0) + *other.costInCents;
}

YearSums sumsOf(const JudgedPlay& play, std::optional<std::int64_t> centsAPlay) {
  YearSums sums;
  sums.plays = 1;
  sums.waiting = play.state == DrawState::waiting ? 1 : 0;
  sums.wins = play.match.wins() ? 1 : 0;
  sums.jackpots = play.jackpot ? 1 : 0;
  sums.winsWithoutPrize = play.match.wins() && !play.jackpot && !play.prize ? 1 : 0;
  sums.doublePlayWins = winsDoublePlay(play) ? 1 : 0;
  sums.dollars = play.prize.value_or(0);
  sums.costInCents = centsAPlay;
  return sums;
}

}  // namespace

Misplaced misplacedOf(const JudgedPlay& play) {
  if (play.file == PlaySlot::committed && play.state == DrawState::drawn) return Misplaced::leftBehind;
  if (play.file == PlaySlot::played && play.state == DrawState::waiting) return Misplaced::movedEarly;
  return Misplaced::no;
}

bool winsDoublePlay(const JudgedPlay& play) {
  return play.state == DrawState::drawn && play.doublePlay && play.doublePlay->wins();
}

bool isWinner(const JudgedPlay& play) {
  return play.match.wins() || winsDoublePlay(play);
}

bool isRemovable(const JudgedPlay& play) {
  return play.state == DrawState::waiting ||
         (play.state == DrawState::unknown && play.file == PlaySlot::committed);
}

std::vector<JudgedPlay> playsIn(const Judgement& judgement, PlayFilter filter) {
  std::vector<JudgedPlay> plays;
  std::ranges::copy_if(judgement.plays, std::back_inserter(plays),
                       [&](const JudgedPlay& play) { return passes(play, filter); });
  std::ranges::stable_sort(plays, isNewer);
  return plays;
}

std::string dateText(const JudgedPlay& play) {
  if (!play.day) return play.date;
  return weekdayDate(*play.day);
}

std::string stateText(const JudgedPlay& play) {
  switch (misplacedOf(play)) {
    case Misplaced::leftBehind:
      return "drawn, left among the next plays";
    case Misplaced::movedEarly:
      return "waiting, moved early";
    case Misplaced::no:
      break;
  }
  if (play.state == DrawState::drawn) return "drawn";
  if (play.state == DrawState::waiting) return "waiting";
  return play.day ? "no such draw known" : "no such day";
}

std::string matchText(const Match& match, Game game) {
  std::string text;
  for (const std::string& white : match.whites) text += join(text.empty() ? "" : " ", white);
  if (match.extra) text += join(text.empty() ? "the " : " and the ", extraBallName(game));
  return text.empty() ? "nothing" : text;
}

std::string matchCount(const Match& match, Game game) {
  const std::string whites = std::to_string(match.whites.size());
  if (match.extra)
    return match.whites.empty() ? std::string(extraBallName(game)) : join(whites, " + ", extraBallName(game));
  if (match.whites.empty()) return {};
  return join(whites, match.whites.size() == 1 ? " number" : " numbers");
}

std::string prizeText(const JudgedPlay& play) {
  if (play.jackpot) {
    const std::string& amount = play.jackpotAmount;
    // A bare figure is in million dollars; any other text says itself what it is.
    const bool isFigure = amount.find_first_not_of("0123456789.,") == std::string::npos;
    if (amount.empty()) return "jackpot";
    return isFigure ? join("jackpot, $", amount, " million") : join("jackpot, ", amount);
  }
  if (play.prize) return moneyText(*play.prize * 100);
  return play.match.wins() ? "won, no published prize" : "";
}

std::string doublePlayText(const JudgedPlay& play) {
  if (!play.doublePlay) return "";
  const std::string matched = matchText(*play.doublePlay, Game::powerBall);
  if (winsDoublePlay(play)) return join(matched, ": won");
  const bool hasMatch = play.doublePlay->extra || !play.doublePlay->whites.empty();
  return hasMatch ? join(matched, ": not won") : matched;
}

std::vector<std::string> playCellTitles(Game game) {
  std::vector<std::string> titles = {"Draw", "Number 1", "Number 2", "Number 3", "Number 4", "Number 5"};
  titles.emplace_back(extraBallName(game));
  for (const char* title : {"State", "Matched", "Prize ($)"}) titles.emplace_back(title);
  if (game == Game::powerBall) titles.emplace_back("With Double Play");
  return titles;
}

std::vector<std::string> playCells(const JudgedPlay& play, Game game) {
  std::vector<std::string> cells = {play.date};
  cells.insert(cells.end(), play.white.begin(), play.white.end());
  cells.insert(cells.end(), {play.extra, stateText(play),
                             play.state == DrawState::drawn ? matchText(play.match, game) : "",
                             play.prize && !play.jackpot ? std::to_string(*play.prize) : prizeText(play)});
  if (game == Game::powerBall) cells.push_back(doublePlayText(play));
  return cells;
}

std::string moneyText(std::int64_t cents) {
  std::string text = grouped(static_cast<std::uint64_t>(cents / 100));
  if (cents % 100 != 0) text += join(".", twoDigits(static_cast<int>(cents % 100)));
  return join("$", text);
}

std::vector<YearSums> sumsByYear(const Judgement& judgement, std::optional<std::int64_t> centsAPlay) {
  std::map<int, YearSums, std::greater<>> years;
  for (const JudgedPlay& play : judgement.plays) {
    // Before every year that a day can have.
    YearSums& sums = years[play.day ? play.day->year() : -1];
    if (play.day) sums.year = play.day->year();
    add(sums, sumsOf(play, centsAPlay));
  }
  std::vector<YearSums> newestFirst;
  newestFirst.reserve(years.size());
  for (const auto& [year, sums] : years) newestFirst.push_back(sums);
  return newestFirst;
}

YearSums totalOf(const std::vector<YearSums>& years) {
  YearSums total;
  for (const YearSums& year : years) add(total, year);
  return total;
}

std::vector<std::string> tornSentences(const Judgement& judgement) {
  std::vector<std::string> sentences;
  for (const std::string& torn : judgement.torn)
    sentences.push_back(join("A record is torn, and the file is judged up to there: ", torn, "."));
  return sentences;
}

std::vector<std::string> noticesOn(const Judgement& judgement) {
  std::vector<std::string> notices = tornSentences(judgement);
  if (const std::string dates = datesOf(judgement, Misplaced::leftBehind); !dates.empty()) {
    notices.push_back(join("Drawn, and left among the next plays: ", dates, "."));
  }
  if (const std::string dates = datesOf(judgement, Misplaced::movedEarly); !dates.empty()) {
    notices.push_back(join("Moved to the played plays before their draw: ", dates, "."));
  }
  return notices;
}

}  // namespace tallywick
