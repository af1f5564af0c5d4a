// SPDX-License-Identifier: GPL-3.0-or-later
#include "plays/check_explained.h"

#include "core/plays.h"
#include "core/text.h"
#include "core/words.h"
#include "display/judging.h"
#include "display/winning_tickets.h"
#include "plays/play_table.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace tallywick {

namespace {

/// What the judging counts among the played plays, and how the check's list of winners differs from it.
struct Counts {
  std::size_t drawn = 0;
  std::size_t won = 0;
  std::size_t doublePlayWon = 0;
  /// Some of these: their own draw did not let them win.
  std::size_t doublePlayAlone = 0;
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
  // There may be a million of both.
  const std::unordered_set<std::string_view> isAmong(listed.begin(), listed.end());
  Counts counts;
  for (const JudgedPlay& play : judgement.plays) {
    const bool isWon = play.match.wins();
    const bool isCommitted = play.file == PlaySlot::committed;
    const bool isListed = !isCommitted && isAmong.contains(itemOf(play));
    if (play.state == DrawState::drawn) ++counts.drawn;
    if (isWon) ++counts.won;
    if (winsDoublePlay(play)) {
      ++counts.doublePlayWon;
      if (!isWon) ++counts.doublePlayAlone;
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
  if (counts.won == 0) return join("None of ", drawn, " won in the draw of its own date.");
  const std::string dollars =
      counts.dollars > 0 ? join(": ", moneyText(counts.dollars * 100), " in all before any multiplier") : "";
  return join(std::to_string(counts.won), " of ", drawn, " won in the draw of ",
              counts.won == 1 ? "its" : "their", " own date", dollars, ".");
}

/// In the words of the strip over the pages.
std::string wonByDoublePlay(const Counts& counts) {
  const std::size_t both = counts.doublePlayWon - counts.doublePlayAlone;
  std::string text = join(counts.won == 0 ? "None" : std::to_string(counts.won), " won");
  if (both > 0) text += join(", ", std::to_string(both), " of them by Double Play too");
  if (counts.doublePlayAlone > 0)
    text += join(" (", std::to_string(counts.doublePlayAlone), " more by Double Play)");
  return text;
}

/// Of the check by date.
std::string verdictByDate(const WinningsPage& page, const Counts& counts) {
  const std::string& verdict = page.Combo10.text();
  const std::size_t listed = page.List14.emphasis().size();
  if (listed > 0) {
    if (verdict.empty()) {
      return "The check leaves this line empty: by date it writes here only for a losing play before the "
             "first "
             "one that won.";
    }
    return join("The check wrote this for a losing play, and did not take it back for the ",
                inFigures(listed, "play"), " after it that won.");
  }
  if (counts.won == 0) return "";
  return "The check missed what won: the sentences above say which plays, and why.";
}

/// Of the check against the newest draw.
std::string verdictOnLatest(const WinningsPage& page, const Counts& counts) {
  if (page.List14.emphasis().empty() && counts.won == 0) return "";
  return join(
      "This is the newest draw alone, against every play, whatever date a play is for. What counts for "
      "a ticket is the draw of its own date",
      counts.drawn == 0 ? "." : ": see above.");
}

}  // namespace

CheckExplained checkExplained(const WinningsPage& page, const GameInfo& game, const Judgement& judgement) {
  const std::vector<std::string>& listed = page.List14.emphasis();
  const Counts counts = countsOf(listed, judgement);
  const bool isByDate = page.Option2.value();
  CheckExplained explained = {judgedSentence(game, counts), {}, tornSentences(judgement)};
  std::vector<std::string>& sentences = explained.more;
  if (!page.Option1.value() && !isByDate) {
    sentences.insert(
        sentences.begin(),
        std::exchange(explained.headline,
                      join("Nothing was checked: choose ", page.Option1.caption(), " or ",
                           page.Option2.caption(), ", then press ", page.Command47.caption(), ".")));
    return explained;
  }
  explained.verdict = isByDate ? verdictByDate(page, counts) : verdictOnLatest(page, counts);
  const auto say = [&](std::string_view what, std::size_t count, std::string_view why) {
    if (count > 0) sentences.push_back(join(what, ": ", inFigures(count, "play"), ". ", why));
  };
  say("Listed, and not won", counts.listedButNotWon - (isByDate ? counts.listedButNotDrawn : 0),
      isByDate ? "The check counts blank and repeated numbers too."
               : "Their numbers match the newest draw, which is not the draw of their own date.");
  say("Listed, and not drawn", isByDate ? counts.listedButNotDrawn : 0,
      "The check reads the search history, which has a draw that the main one lacks.");
  say("Won, and not listed", counts.wonButNotListed,
      isByDate ? "The check compares dates as they are written."
               : "The check looks at the newest draw alone.");
  say("Won, and still among the next plays", counts.wonButCommitted, "The check does not look there.");
  const bool isFirstListed = !isByDate && page.List10.items().size() > 0;
  if (isFirstListed != counts.firstWonDoublePlay || counts.doublePlayWon > (isFirstListed ? 1U : 0U)) {
    sentences.push_back(join(wonByDoublePlay(counts), ". ",
                             isByDate
                                 ? "The check by date does not look at Double Play."
                                 : "The check sets the first play against the newest Double Play draw."));
  }
  return explained;
}

}  // namespace tallywick
