// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/digits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

namespace tallywick::setup {

namespace {

/// Part of an ellipse, from one angle to another, clockwise in degrees from the right.
Stroke arc(Point centre, Point radii, double from, double to) {
  constexpr int steps = 24;
  Stroke stroke;
  for (int step = 0; step <= steps; ++step) {
    const double angle = (from + (to - from) * step / steps) * std::numbers::pi / 180;
    stroke.push_back({centre.x + radii.x * std::cos(angle), centre.y + radii.y * std::sin(angle)});
  }
  return stroke;
}

/// `stroke` with `rest` drawn on from its end.
Stroke onward(Stroke stroke, const Stroke& rest) {
  stroke.insert(stroke.end(), rest.begin(), rest.end());
  return stroke;
}

/// The 6; upside down it is the 9.
Glyph hook(double sign) {
  Glyph glyph = {arc({0, 0.19}, {0.27, 0.31}, 0, 360),
                 onward(arc({0.22, 0.19}, {0.49, 0.69}, 180, 262), {{0.2, -0.5}})};
  for (Stroke& stroke : glyph) {
    for (Point& point : stroke) point = {sign * point.x, sign * point.y};
  }
  return glyph;
}

std::array<Glyph, 10> drawDigits() {
  return {
      Glyph{arc({0, 0}, {0.27, 0.5}, 0, 360)},
      Glyph{{{-0.17, -0.33}, {0.05, -0.5}, {0.05, 0.5}}},
      Glyph{onward(arc({0, -0.23}, {0.26, 0.27}, 195, 395), {{-0.27, 0.5}, {0.28, 0.5}})},
      Glyph{onward(arc({-0.01, -0.255}, {0.24, 0.245}, 205, 450),
                   arc({-0.01, 0.235}, {0.28, 0.265}, 270, 515))},
      Glyph{{{0.13, 0.5}, {0.13, -0.5}, {-0.29, 0.19}, {0.3, 0.19}}},
      Glyph{onward({{0.23, -0.5}, {-0.2, -0.5}, {-0.24, -0.03}}, arc({-0.01, 0.18}, {0.28, 0.32}, 222, 510))},
      hook(1),
      Glyph{{{-0.27, -0.5}, {0.27, -0.5}, {-0.08, 0.5}}},
      Glyph{arc({0, -0.26}, {0.23, 0.24}, 0, 360), arc({0, 0.235}, {0.28, 0.265}, 0, 360)},
      hook(-1)};
}

double squaredDistance(Point from, Point to, Point at) {
  const Point along = {to.x - from.x, to.y - from.y};
  const double length = along.x * along.x + along.y * along.y;
  const double part = length == 0 ? 0 : ((at.x - from.x) * along.x + (at.y - from.y) * along.y) / length;
  const double near = std::clamp(part, 0.0, 1.0);
  const Point away = {from.x + near * along.x - at.x, from.y + near * along.y - at.y};
  return away.x * away.x + away.y * away.y;
}

}  // namespace

const Glyph& digitGlyph(int digit) {
  static const std::array<Glyph, 10> digits = drawDigits();
  return digits.at(static_cast<std::size_t>(digit));
}

double distanceTo(const Glyph& glyph, Point at) {
  double nearest = std::numeric_limits<double>::max();
  for (const Stroke& stroke : glyph) {
    for (std::size_t i = 1; i < stroke.size(); ++i) {
      nearest = std::min(nearest, squaredDistance(stroke[i - 1], stroke[i], at));
    }
  }
  return std::sqrt(nearest);
}

}  // namespace tallywick::setup
