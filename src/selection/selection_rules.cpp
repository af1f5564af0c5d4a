// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/selection_rules.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace tallywick {

namespace {

constexpr SelectionRules powerBallRules = {
    .form = "Form3",
    .title = "The Tallywick Software... Selection (PowerBall)",
    .threeMarks = 26,
    .invalidExtra = "You've Selected an Invalid PowerBall Number.",
    .invalidExtraTitle = "PowerBall Lottery Game",
    .tooManyExtras = "Only One PowerBall Selection Can Be Made...",
    .noExtra = "You haven't Selected a PowerBall Selection...",
    .notSixNumbers = "Six Numbers Must Be Selected...",
    .countTitle = "PowerBall Lotto Select to Play.",
    .quickPick = {.main = 69,
                  .extra = 26,
                  .mainRedraw = 69,
                  .extraRedraw = 26,
                  .lastMain = 69,
                  .neverMain = {0, 0},
                  .lastExtra = 26},
    // Kept slip: 60 to 69 are never replayed.
    .replayMain = 59,
    .replayExtra = 26,
};

constexpr SelectionRules megaMillionsRules = {
    .form = "Form5",
    .title = "The Tallywick Software... Selection (Mega Millions)",
    .threeMarks = 25,
    .invalidExtra = "You've Selected an Invalid MegaMillions Number.",
    .invalidExtraTitle = "MegaMillions Lottery Game",
    .tooManyExtras = "Only One Mega Millions Selection Can Be Made...",
    .noExtra = "You haven't Selected a Mega Millions Selection...",
    .notSixNumbers = "Six Numbers Must Be Selected...",
    .countTitle = "Mega Millions Lotto Select to Play.",
    // Kept slips: the redraw has other limits than the draw, and 53 and 54 are never marked.
    .quickPick = {.main = 70,
                  .extra = 25,
                  .mainRedraw = 75,
                  .extraRedraw = 15,
                  .lastMain = 75,
                  .neverMain = {53, 54},
                  .lastExtra = 52},
    // Kept slip: 60 to 79 are never replayed.
    .replayMain = 59,
    .replayExtra = 52,
};

/// Consecutive numbers whose controls are numbered consecutively.
struct ControlRun {
  NumberRange numbers;
  int firstControl;
};

constexpr std::array<ControlRun, 9> controlRuns = {{
    {{1, 1}, 2},
    {{2, 8}, 10},
    {{9, 9}, 3},
    {{10, 51}, 17},
    {{52, 52}, 85},
    {{53, 53}, 6},
    {{54, 54}, 8},
    {{55, 77}, 61},
    {{78, 79}, 87},
}};

}  // namespace

const SelectionRules& selectionRulesOf(Game game) {
  return game == Game::powerBall ? powerBallRules : megaMillionsRules;
}

std::string numberButtonName(int number) {
  const auto run =
      std::find_if(controlRuns.begin(), std::prev(controlRuns.end()),
                   [&](const ControlRun& candidate) { return candidate.numbers.contains(number); });
  return "Command" + std::to_string(run->firstControl + number - run->numbers.first);
}

}  // namespace tallywick
