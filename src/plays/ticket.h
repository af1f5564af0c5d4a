// SPDX-License-Identifier: GPL-3.0-or-later
// A ticket that the player types in: judged without being kept, or kept as a play.
#pragma once

#include "core/day.h"
#include "core/games.h"
#include "display/judging.h"

#include <optional>
#include <string>
#include <string_view>

namespace tallywick {

class DataFolder;
struct PlayTexts;

/// What the player typed.
struct TypedTicket {
  /// Five numbers, in any order, with blanks or commas between.
  std::string_view numbers;
  std::string_view extra;
  /// As typedDay() takes it.
  std::string_view date;
};

/// A day as somebody types it: 11-18-2026, 11/18/2026, 11182026 or 2026-11-18. None where it is no day.
std::optional<Day> typedDay(std::string_view text);

/// The day of the game's newest draw; none where there is none or it cannot be read.
std::optional<Day> newestDrawDay(const GameInfo& game, const DataFolder& folder);

/// The play record of the ticket. Raises std::invalid_argument that says what is wrong with it.
std::string ticketRecord(const GameInfo& game, const TypedTicket& typed);

/// Judges the ticket and keeps nothing.
JudgedPlay judgeTicket(const GameInfo& game, const DataFolder& folder, std::string_view record);

/// What the judging says, for the player: "Drawn on Wed 12-30-2026. Matched: 10 20 30. It wins $7."
std::string ticketVerdict(const GameInfo& game, const JudgedPlay& ticket);

/// Whether the ticket belongs to the player's plays: it is drawn, or waits for a day on which the game is
/// drawn.
bool canBeKept(const GameInfo& game, const JudgedPlay& ticket);
/// The plays that it belongs to.
PlaySlot fileForTicket(const JudgedPlay& ticket);
/// Whether the same play of the same day is among the player's plays already.
bool isAmongPlays(const Judgement& plays, const JudgedPlay& ticket);

}  // namespace tallywick
