// SPDX-License-Identifier: GPL-3.0-or-later
// The combinations of number buttons that the two/three-number search knows, in the order in which they are
// tried.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tallywick {

/// Positions 1 to 6 of the number buttons, ascending; 0 in the third place of a pair.
using Positions = std::array<std::uint8_t, 3>;

/// What follows the draw in a result line.
enum class LineTail : std::uint8_t { none, blanks, fieldTen };

struct Combination {
  Positions positions;
  /// How many of the draw's numbers are compared: the white balls, and the extra ball as the sixth.
  std::size_t compared = 6;
  /// The tail of the lines that follow the first one in the drop-down, for the members that have a button.
  LineTail laterTail = LineTail::none;

  constexpr std::size_t size() const { return positions[2] == 0 ? 2 : 3; }
};

/// The first one whose positions are all marked is searched, and no other.
/// Kept slip: 2-4-5 is missing, so that these marks search the pair 2-4.
inline constexpr std::array<Combination, 34> combinations = {{
    // Kept slip: the first two leave the extra ball out.
    {{1, 2, 3}, 5},
    {{1, 2, 4}, 5},
    {{1, 2, 5}},
    // Kept slip: later lines show the tenth field.
    {{1, 2, 6}, 6, LineTail::fieldTen},
    {{1, 3, 4}},
    {{1, 3, 5}},
    {{1, 3, 6}},
    {{1, 4, 5}},
    {{1, 4, 6}},
    {{1, 5, 6}},
    {{2, 3, 4}},
    {{2, 3, 5}},
    {{2, 3, 6}},
    {{2, 4, 6}},
    {{2, 5, 6}},
    {{3, 4, 5}},
    {{3, 4, 6}},
    {{3, 5, 6}},
    {{4, 5, 6}},
    {{1, 2}},
    // Kept slip: later lines end with blanks.
    {{1, 3}, 6, LineTail::blanks},
    {{1, 4}},
    {{1, 5}},
    {{1, 6}},
    {{2, 3}},
    {{2, 4}},
    {{2, 5}},
    {{2, 6}},
    {{3, 4}},
    {{3, 5}},
    {{3, 6}},
    {{4, 5}},
    {{4, 6}},
    {{5, 6}},
}};

}  // namespace tallywick
