// SPDX-License-Identifier: GPL-3.0-or-later
// The number buttons of the search pages: their marks (cyan is marked, button face is not) and the numbers
// that a draw line puts on them.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "core/draws.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace tallywick {

/// The position of the extra ball in a draw line, from 1.
inline constexpr std::size_t extraBallPosition = numbersInDrawLine.back();
/// The same in the lines of the leftover state game.
inline constexpr std::size_t hoosierExtraBallPosition = 31;

bool isMarked(const Button& button);

/// Button face becomes cyan, cyan button face; any other colour stays.
void toggleMark(Button& button);

void unmarkAll(ButtonRow<6>& numbers);

/// The caption of the first marked button; empty where none is marked.
std::string firstMarkedNumber(const ButtonRow<6>& numbers);

struct Combination;
/// The combination of the two/three-number search that the marks choose; null where fewer than two are
/// marked.
const Combination* chosenCombination(const ButtonRow<6>& numbers);

/// Gives the buttons the numbers of `drawLine`, whatever characters are there; beyond the line's end the
/// caption is empty.
void setNumbers(ButtonRow<6>& numbers, std::string_view drawLine, std::size_t extraBallAt);
/// The same, and unmarks them.
void displayNumbers(ButtonRow<6>& numbers, std::string_view drawLine, std::size_t extraBallAt);

}  // namespace tallywick
