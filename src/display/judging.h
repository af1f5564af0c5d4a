// SPDX-License-Identifier: GPL-3.0-or-later
// Judges plays truly: what each one matched in the draw of its own date, and what that pays. The
// winning-ticket check keeps its own rules beside this; whatever else says that a play won comes from here.
#pragma once

#include "core/day.h"
#include "core/games.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class DataFolder;

enum class DrawState {
  drawn,    ///< the main history has a draw of the play's date
  waiting,  ///< the date is later than the newest draw
  unknown   ///< neither, or the date is no day of the calendar
};

/// What a play and a draw have in common. Numbers are compared as text, as in every other reader of these
/// files: "7" and "07" differ. A blank number matches nothing.
struct Match {
  /// The white balls that were drawn, in the play's order, each once.
  std::vector<std::string> whites;
  bool extra = false;

  /// Three white balls or the extra one.
  bool wins() const { return extra || whites.size() >= 3; }
  bool operator==(const Match&) const = default;
};

struct JudgedPlay {
  /// Committed or played.
  PlaySlot file;
  /// The number of its record in the file, from 1.
  std::size_t record;
  /// As the record has it.
  std::string date;
  /// None where the date is no day of the calendar.
  std::optional<Day> day;
  std::array<std::string, 5> white;
  std::string extra;

  DrawState state = DrawState::unknown;
  /// Empty unless the play is drawn.
  Match match;
  bool jackpot = false;
  /// Whole dollars before any multiplier: none for the jackpot, and where no published table covers the day.
  std::optional<std::int64_t> prize;
  /// The amount announced for the draw of a jackpot, as the winnings file shows it; blank where it has none.
  std::string jackpotAmount;
  /// Against the Double Play numbers of the date, where they are known.
  std::optional<Match> doublePlay;

  bool operator==(const JudgedPlay&) const = default;
};

struct Judgement {
  /// The committed plays, then the played ones, in file order, but for records that are no real plays.
  std::vector<JudgedPlay> plays;
  /// For each file with a torn record: its name, and where the first one is. What comes before is judged.
  std::vector<std::string> torn;

  bool operator==(const Judgement&) const = default;
};

/// The contents of a game's files.
struct JudgingTexts {
  std::string_view committed;
  std::string_view played;
  std::string_view draws;
  /// Empty for a game without Double Play.
  std::string_view doublePlays;
  std::string_view amounts;
};

/// Reads each text once. Of several draws of one date the first counts, as in the winning-ticket check; days
/// are compared as days, whatever order the records have.
Judgement judge(const GameInfo& game, const JudgingTexts& texts);

/// The files that a game's judging reads, as they are written for the data folder.
std::vector<std::string> filesJudged(const GameInfo& game);

/// Judges all plays of the game's folder and changes nothing. Missing play and winnings files read as empty;
/// error 53 where a draw history is missing.
Judgement judgePlays(const GameInfo& game, const DataFolder& folder);

/// Judges the plays of a text in the place of those in the play files.
Judgement judgePlays(const GameInfo& game, const DataFolder& folder, std::string_view played,
                     std::string_view committed = {});

}  // namespace tallywick
