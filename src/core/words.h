// SPDX-License-Identifier: GPL-3.0-or-later
// Pieces of the sentences that are written for the player beside the fixed texts.
#pragma once

#include "core/day.h"
#include "core/games.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// "PowerBall" or "Mega Ball".
std::string_view extraBallName(Game game);

/// "Sat 11-21-2026".
std::string weekdayDate(Day day);
/// The same for a date of a file; unchanged where it is no day.
std::string weekdayDate(std::string_view date);

/// "one" to "ten", digits beyond.
std::string numberWord(std::size_t count);
/// "one play", "two plays".
std::string counted(std::size_t count, std::string_view thing);
/// "1 play", "12 plays".
std::string inFigures(std::size_t count, std::string_view thing);
/// "12,345": a comma before every three digits.
std::string grouped(std::uint64_t number);
/// "05", "05 and 07", "05, 07 and 11".
std::string listed(const std::vector<std::string>& things);
/// With its first letter as a capital.
std::string sentence(std::string text);

}  // namespace tallywick
