// SPDX-License-Identifier: GPL-3.0-or-later
// What is known about a game's newest draw and the next one.
#pragma once

#include "core/day.h"
#include "core/games.h"
#include "core/os.h"
#include "exports/history_report.h"

#include <optional>
#include <string>
#include <vector>

namespace tallywick {

class Clock;
class DataFolder;
struct GameFetch;

/// A sentence for the player: which draw is not published yet, or when the next one takes place.
std::string drawsNote(const GameInfo& game, const DataFolder& folder, const Clock& clock);

/// For which draws there are Double Play numbers; empty where every Double Play record has them, or none is
/// there.
std::string doublePlayNote(const DataFolder& folder);

/// Those of the files of draws of both games; none where the folder cannot be read.
std::vector<os::FileStamp> stampsOfDraws(const DataFolder& folder);

/// That the newest draw of the game is long past: "The newest PowerBall draw is 23 months old." Empty while
/// it is less than two weeks old, or not known.
std::string drawsAgeNote(const GameInfo& game, const DataFolder& folder, const Clock& clock);

/// How many draws there are, from when to when, and which scheduled ones are missing; a line each.
std::string summaryOf(const GameInfo& game, const exports::HistoryReport& history);

/// Why a fetch has failed, with the host in the place of the whole address.
std::string fetchFailure(const GameFetch& fetch);

}  // namespace tallywick
