// SPDX-License-Identifier: GPL-3.0-or-later
// Sample draws, amounts and plays: made up, but by each game's rules and on its draw days.
#pragma once

#include "core/games.h"
#include "setup/book.h"

#include <cstdint>
#include <vector>

namespace tallywick::setup {

/// The draws up to `last`, newest first. A later `last` with the same seed only adds draws.
std::vector<DrawEntry> sampleDraws(Game game, Day last, std::uint64_t seed);

/// An amount for every draw: it rises until somebody wins it and then starts anew at the game's base amount.
std::vector<AmountEntry> sampleAmounts(Game game, const std::vector<DrawEntry>& draws, std::uint64_t seed);

/// Plays for the draws after `last`, plays of the newest draws with some winners among them, saved texts.
void addSamplePlays(Game game, GameBook& book, Day last, std::uint64_t seed);

}  // namespace tallywick::setup
