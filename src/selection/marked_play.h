// SPDX-License-Identifier: GPL-3.0-or-later
// The play that the marks make: what Select checks and enters, and what a window can say before the press.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tallywick {

class SelectionForm;
struct SelectionRules;

struct MarkedPlay {
  /// Five main numbers and the extra ball; 0 where a place is empty.
  std::array<int, 6> places{};
  /// An extra ball that fills up a play of four numbers counts twice.
  int marked = 0;
  int extras = 0;

  void add(int number) {
    if (marked < 6) places[static_cast<std::size_t>(marked)] = number;
    ++marked;
  }
  bool isFull() const { return places.back() != 0; }
  std::array<int, 5> main() const { return {places[0], places[1], places[2], places[3], places[4]}; }
};

MarkedPlay markedPlay(const SelectionForm& form);

/// The first number whose extra mark is refused by name; 0 where there is none.
int refusedExtra(const SelectionForm& form);

/// What is wrong with the counts; empty where nothing is.
std::string_view complaint(const SelectionRules& rules, const MarkedPlay& play);

}  // namespace tallywick
