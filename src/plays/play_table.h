// SPDX-License-Identifier: GPL-3.0-or-later
// The table of all plays of a game with what the judging says of each, and its sums. Plain texts: a window
// only shows them.
#pragma once

#include "core/words.h"
#include "display/judging.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

enum class PlayFilter { all, waiting, drawn, won };

/// Where a play is in the file that its draw speaks against.
enum class Misplaced {
  no,
  leftBehind,  ///< drawn, and still among the committed plays
  movedEarly   ///< waits, and is among the played plays already
};

Misplaced misplacedOf(const JudgedPlay& play);

/// Whether a drawn play won in the Double Play draw of its date. The Double Play history may have that draw
/// before the main one does.
bool winsDoublePlay(const JudgedPlay& play);

/// Whether the play won in its draw or in the Double Play draw of its date.
bool isWinner(const JudgedPlay& play);

/// Whether the player may take it away: it waits for its draw, or is committed and no draw of its date is
/// known.
bool isRemovable(const JudgedPlay& play);

/// The plays that the filter lets through, newest first; those of one day in the judgement's order, those
/// without a day last.
std::vector<JudgedPlay> playsIn(const Judgement& judgement, PlayFilter filter);

/// "Wed 12-30-2026"; as the record has it where it is no day.
std::string dateText(const JudgedPlay& play);
/// "waiting", "drawn, still among the next plays" …
std::string stateText(const JudgedPlay& play);
/// "10 20 30 and the PowerBall", "nothing"; empty where nothing was drawn.
std::string matchText(const Match& match, Game game);
/// "3 numbers", "2 + PowerBall", "Mega Ball"; empty where nothing matches.
std::string matchCount(const Match& match, Game game);
/// "$7", "jackpot, $300 million", "won, no published prize"; empty where nothing is won.
std::string prizeText(const JudgedPlay& play);
/// What matched the Double Play numbers, and whether that wins; empty where they are not known.
std::string doublePlayText(const JudgedPlay& play);

/// The table for a spreadsheet: the titles, and of a play a cell for each of its numbers, its date as the
/// record has it, and its prize as a plain number of dollars where it is one.
std::vector<std::string> playCellTitles(Game game);
std::vector<std::string> playCells(const JudgedPlay& play, Game game);

/// "$1,000,000" for whole dollars, else "$2.50".
std::string moneyText(std::int64_t cents);

/// What the plays of a year came to.
struct YearSums {
  /// None for plays whose date is no day.
  std::optional<int> year;
  std::size_t plays = 0;
  std::size_t waiting = 0;
  /// In the main draw.
  std::size_t wins = 0;
  /// Wins whose dollars are not in the sum: jackpots, and wins that no published table covers.
  std::size_t jackpots = 0;
  std::size_t winsWithoutPrize = 0;
  std::size_t doublePlayWins = 0;
  /// Whole dollars before any multiplier.
  std::int64_t dollars = 0;
  /// None where a play has no price.
  std::optional<std::int64_t> costInCents;
};

/// Newest year first, then plays without a day.
std::vector<YearSums> sumsByYear(const Judgement& judgement, std::optional<std::int64_t> centsAPlay);
YearSums totalOf(const std::vector<YearSums>& years);

/// A sentence for each file that was judged only up to a torn record.
std::vector<std::string> tornSentences(const Judgement& judgement);

/// What the player should know of the files: where one was read only in part, and which plays are left behind
/// or moved early, each with its date. A sentence a line.
std::vector<std::string> noticesOn(const Judgement& judgement);

}  // namespace tallywick
