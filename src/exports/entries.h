// SPDX-License-Identifier: GPL-3.0-or-later
// Draws and amounts as numbers, between an export's rows and a game folder's records.
#pragma once

#include "core/day.h"

#include <array>
#include <optional>
#include <string>

namespace tallywick::exports {

/// Five white balls and the extra ball, of a draw or a play.
struct Balls {
  std::array<int, 5> white;
  int extra;

  bool operator==(const Balls&) const = default;
};

struct DrawEntry {
  Day day;
  Balls balls;
  /// The tenth field: the number that multiplies the prizes, without a leading zero; "1" where there was
  /// none.
  std::string multiplier = "1";
  std::optional<Balls> doublePlay = {};
};

struct AmountEntry {
  Day day;
  /// As it is to be shown.
  std::string amount;
  /// How many tickets won it.
  int marks = 0;

  bool operator==(const AmountEntry&) const = default;
};

}  // namespace tallywick::exports
