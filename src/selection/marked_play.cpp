// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/marked_play.h"

#include "selection/selection_form.h"

#include <algorithm>

namespace tallywick {

namespace {

bool isExtra(const SelectionForm& form, int number) {
  return markOf(form.button(number)) == Mark::extra;
}

/// All marked numbers ascending, the extra ball among them; what is beyond six is only counted.
MarkedPlay collectMarks(const SelectionForm& form) {
  MarkedPlay play;
  for (int number = 1; number <= form.game.lastNumber; ++number) {
    if (markOf(form.button(number)) == Mark::none) continue;
    play.add(number);
    if (isExtra(form, number)) ++play.extras;
  }
  return play;
}

/// Puts the extra ball into the last place.
/// Kept slip: beside four main numbers it is in two places and counts twice, so that such a play passes.
void placeExtra(const SelectionForm& form, MarkedPlay& play) {
  const auto extra = std::find_if(play.places.begin(), play.places.end(),
                                  [&](int number) { return number != 0 && isExtra(form, number); });
  if (play.isFull()) {
    if (extra != play.places.end()) std::rotate(extra, extra + 1, play.places.end());
    return;
  }
  for (int number = extrasThatFillUp.first; number <= extrasThatFillUp.last; ++number) {
    if (!isExtra(form, number)) continue;
    play.places.back() = number;
    ++play.marked;
  }
}

}  // namespace

MarkedPlay markedPlay(const SelectionForm& form) {
  MarkedPlay play = collectMarks(form);
  placeExtra(form, play);
  return play;
}

int refusedExtra(const SelectionForm& form) {
  for (int number = refusedExtras.first; number <= refusedExtras.last; ++number) {
    if (isExtra(form, number)) return number;
  }
  return 0;
}

std::string_view complaint(const SelectionRules& rules, const MarkedPlay& play) {
  if (play.extras > 1) return rules.tooManyExtras;
  if (play.extras != 1) return rules.noExtra;
  if (play.marked != 6) return rules.notSixNumbers;
  return {};
}

}  // namespace tallywick
