// SPDX-License-Identifier: GPL-3.0-or-later
// What differs between the two games' selection windows, as one table.
#pragma once

#include "core/games.h"

#include <array>
#include <string_view>

namespace tallywick {

/// Numbers from `first` to `last`, both among them.
struct NumberRange {
  int first;
  int last;
  constexpr bool contains(int number) const { return number >= first && number <= last; }
};

/// How Quick Pick draws and marks. A draw is a number from 1 to the limit.
struct QuickPickRules {
  int main;
  int extra;
  /// The limits of the one redraw of a pick that repeats another.
  int mainRedraw;
  int extraRedraw;
  /// The last number that gets the main mark, and the numbers before it that get none.
  int lastMain;
  NumberRange neverMain;
  int lastExtra;
};

struct SelectionRules {
  std::string_view form;
  std::string_view title;
  /// Presses take "01" to this number through main and extra, the others through main only.
  int threeMarks;

  std::string_view invalidExtra;
  std::string_view invalidExtraTitle;
  std::string_view tooManyExtras;
  std::string_view noExtra;
  std::string_view notSixNumbers;
  std::string_view countTitle;

  QuickPickRules quickPick;
  /// The last numbers that Replay marks as main and as extra.
  int replayMain;
  int replayExtra;
};

const SelectionRules& selectionRulesOf(Game game);

/// Numbers at which an extra mark is refused by name. Kept slip: these ten and no others.
inline constexpr NumberRange refusedExtras = {43, 52};
/// Where an extra mark is looked for to make five marks a play: four main numbers and one extra.
inline constexpr NumberRange extrasThatFillUp = {1, 55};

/// The designer name of a number's button, for example "Command17" for 10.
std::string numberButtonName(int number);

}  // namespace tallywick
