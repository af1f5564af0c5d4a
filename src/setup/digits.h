// SPDX-License-Identifier: GPL-3.0-or-later
// The digits on the balls, drawn as strokes.
#pragma once

#include <vector>

namespace tallywick::setup {

struct Point {
  double x;
  double y;
};

/// Lines through points. A digit is one unit high, its middle at (0, 0), y downwards.
using Stroke = std::vector<Point>;
using Glyph = std::vector<Stroke>;

/// The strokes of a digit from 0 to 9.
const Glyph& digitGlyph(int digit);

/// How far `at` is from the nearest stroke.
double distanceTo(const Glyph& glyph, Point at);

}  // namespace tallywick::setup
