// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/check_explained.h"

#include "core/plays.h"
#include "core/text.h"
#include "core/words.h"
#include "display/judging.h"
#include "display/winning_tickets.h"
#include "plays/play_table.h"

#include <algorithm>

namespace tallywick {

namespace {

/// What the judging counts among the played plays, and how the check's list of winners differs from it.
struct Counts {
  std::size_t drawn = 0;
  std::size_t won = 0;
  std::size_t doublePlayWon = 0;
  /// Whether the first played play is one of these.
  bool firstWonDoublePlay = false;
  std::int64_t dollars = 0;
  /// Won, and still among the committed plays, at which the check does not look.
  std::size_t wonButCommitted = 0;
  std::size_t wonButNotListed = 0;
  std::size_t listedButNotWon = 0;
  /// Some of these: the main history has no draw of their day.
  std::size_t listedButNotDrawn = 0;
};

std::string itemOf(const JudgedPlay& play) {
  Play views;
  views.date = play.date;
  std::ranges::copy(play.white, views.main.begin());
  views.extra = play.extra;
  return views.itemText();
}

Counts countsOf(const std::vector<std::string>& listed, const Judgement& judgement) {
  Counts counts;
  for (const JudgedPlay& play : judgement.plays) {
    const bool isWon = play.match.wins();
    const bool isCommitted = play.file == PlaySlot::committed;
    const bool isListed = !isCommitted && std::ranges::find(listed, itemOf(play)) != listed.end();
    if (play.state == DrawState::drawn) ++counts.drawn;
    if (isWon) ++counts.won;
    if (winsDoublePlay(play)) {
      ++counts.doublePlayWon;
      if (!isCommitted && play.record == 1) counts.firstWonDoublePlay = true;
    }
    counts.dollars += play.prize.value_or(0);
    if (isWon && isCommitted) ++counts.wonButCommitted;
    if (isWon && !isCommitted && !isListed) ++counts.wonButNotListed;
    if (isListed && !isWon) ++counts.listedButNotWon;
    if (isListed && play.day && play.state != DrawState::drawn) ++counts.listedButNotDrawn;
  }
  return counts;
}

std::string judgedSentence(const GameInfo& game, const Counts& counts) {
  if (counts.drawn == 0) return join("No play of ", game.name, " has been drawn yet.");
  const std::string drawn = inFigures(counts.drawn, join("drawn ", game.name, " play"));
  if (counts.won == 0) return join("Judged by the draw of each play's own date, none of ", drawn, " won.");
  const std::string dollars =
      counts.dollars > 0 ? join(", ", moneyText(counts.dollars * 100), " in all before any multiplier") : "";
  return join("Judged by the draw of each play's own date, ", std::to_string(counts.won), " of ", drawn,
              " won", dollars, ".");
}

}  // namespace

std::vector<std::string> checkExplained(const WinningsPage& page, const GameInfo& game,
                                        const Judgement& judgement) {
  const std::vector<std::string>& listed = page.List14.emphasis();
  const Counts counts = countsOf(listed, judgement);
  const bool isByDate = page.Option2.value();
  std::vector<std::string> sentences = tornSentences(judgement);
  sentences.insert(sentences.begin(), judgedSentence(game, counts));
  if (!page.Option1.value() && !isByDate) {
    sentences.insert(sentences.begin(),
                     join("Nothing was checked: choose ", page.Option1.caption(), " or ",
                          page.Option2.caption(), ", then press ", page.Command47.caption(), "."));
    return sentences;
  }
  const auto say = [&](std::string_view what, std::size_t count, std::string_view why) {
    if (count > 0) sentences.push_back(join(what, ": ", inFigures(count, "play"), ". ", why));
  };
  if (isByDate && !listed.empty()) {
    sentences.emplace_back(page.Combo10.text().empty()
                               ? "The verdict line stays empty: the check by date writes there only for a "
                                 "play that comes before the first winner."
                               : "The verdict line is from a losing play; the lists have those that won.");
  }
  say("Listed, and not won", counts.listedButNotWon - (isByDate ? counts.listedButNotDrawn : 0),
      isByDate ? "The check counts blank and repeated numbers too."
               : "The check compares every play with the newest draw; a ticket counts in the draw of its own "
                 "date.");
  say("Listed, and not drawn", isByDate ? counts.listedButNotDrawn : 0,
      "The check reads the search history, which has a draw that the main one lacks.");
  say("Won, and not listed", counts.wonButNotListed,
      isByDate ? "The check compares dates as they are written."
               : "The check looks at the newest draw alone.");
  say("Won, and still among the next plays", counts.wonButCommitted, "The check does not look there.");
  const bool isFirstListed = !isByDate && page.List10.items().size() > 0;
  if (isFirstListed != counts.firstWonDoublePlay || counts.doublePlayWon > (isFirstListed ? 1U : 0U)) {
    sentences.push_back(join("Won with Double Play: ", inFigures(counts.doublePlayWon, "play"), ". ",
                             isByDate
                                 ? "The check by date does not look at Double Play."
                                 : "The check sets the first play against the newest Double Play draw."));
  }
  return sentences;
}

}  // namespace tallywick
