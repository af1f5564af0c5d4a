// SPDX-License-Identifier: GPL-3.0-or-later
// Draw histories of any length for the benchmarks, in the shapes in which files come; the same ones every
// time.
#pragma once

#include <cstddef>
#include <string>

namespace tallywick::bench {

enum class Shape {
  quoted,      ///< ten fields, every one in double quotes
  bare,        ///< ten fields without quotes
  mixed,       ///< bare; the tenth field has one digit or two
  doublePlay,  ///< eighteen fields in double quotes
};

/// `count` draws of 5 of 69 and 1 of 26.
std::string drawHistory(std::size_t count, Shape shape);

}  // namespace tallywick::bench
