// SPDX-License-Identifier: GPL-3.0-or-later
// Quick Pick: marks six random picks, seeded from the newest draw.
#include "core/draws.h"
#include "core/sequential_reader.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <array>

namespace tallywick {

namespace {

/// Five main numbers and the extra ball.
using Picks = std::array<int, 6>;
using Seeds = std::array<std::string_view, 6>;

constexpr std::size_t extraPick = 5;

int draw(RandomGenerator& random, std::string_view seed, int limit) {
  random.seed(seed);
  return static_cast<int>(random.next() * limit) + 1;
}

/// A pick that repeats another is drawn once more; a repetition that survives stays.
Picks drawPicks(RandomGenerator& random, const QuickPickRules& rules, const Seeds& seeds) {
  Picks picks{};
  for (std::size_t i = 0; i < picks.size(); ++i) {
    picks[i] = draw(random, seeds[i], i == extraPick ? rules.extra : rules.main);
  }
  for (std::size_t i = 0; i < picks.size(); ++i) {
    if (std::count(picks.begin(), picks.end(), picks[i]) == 1) continue;
    picks[i] = draw(random, seeds[i], i == extraPick ? rules.extraRedraw : rules.mainRedraw);
  }
  return picks;
}

void markPicks(SelectionForm& form, const Picks& picks) {
  const QuickPickRules& rules = form.rules.quickPick;
  for (int pick : picks) {
    if (pick <= rules.lastMain && !rules.neverMain.contains(pick)) setMark(form.button(pick), Mark::main);
  }
  if (picks[extraPick] <= rules.lastExtra) setMark(form.button(picks[extraPick]), Mark::extra);
}

}  // namespace

void Command9_Click(SelectionForm& form) {
  form.Command59.show();
  SequentialReader draws(form.surroundings.folder, inFolder(form.game, drawsFile),
                         SequentialReader::Reading::inPieces);
  const Draw newest = drawOf(draws.record<drawFields>());
  Seeds seeds;
  std::copy(newest.white.begin(), newest.white.end(), seeds.begin());
  seeds[extraPick] = newest.extra;

  const Picks picks = drawPicks(form.surroundings.random, form.rules.quickPick, seeds);
  form.unmarkAll();
  markPicks(form, picks);
}

}  // namespace tallywick
