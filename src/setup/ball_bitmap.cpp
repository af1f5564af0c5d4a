// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/ball_bitmap.h"

#include "core/games.h"
#include "core/text.h"
#include "setup/digits.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tallywick::setup {

namespace {

constexpr int size = 64;
constexpr double middle = size / 2.0;
constexpr double radius = middle - 1;
constexpr double digitHeight = 25;
constexpr double digitAdvance = 18.5;
constexpr double strokeHalf = 2.3;

struct Shade {
  double red;
  double green;
  double blue;
};

/// A ball is lit from the upper left: `light` there, `body` over most of it, `rim` at its edge.
struct Look {
  Shade light;
  Shade body;
  Shade rim;
  Shade ink;
};
constexpr Look whiteLook = {{255, 255, 255}, {240, 241, 245}, {150, 154, 166}, {24, 28, 38}};
constexpr Look extraLook = {{214, 40, 57}, {190, 18, 42}, {112, 4, 22}, {255, 255, 255}};

Shade mix(Shade from, Shade to, double part) {
  part = std::clamp(part, 0.0, 1.0);
  const auto between = [&](double a, double b) { return a + (b - a) * part; };
  return {between(from.red, to.red), between(from.green, to.green), between(from.blue, to.blue)};
}

/// How much of a pixel lies inside an edge that is `depth` pixels away.
double coverage(double depth) {
  return std::clamp(depth + 0.5, 0.0, 1.0);
}

Shade ballAt(const Look& look, Point at) {
  const double fromMiddle = std::hypot(at.x, at.y) / radius;
  const double fromLight = std::hypot(at.x + 0.3 * radius, at.y + 0.38 * radius) / radius;
  const Shade lit = mix(look.light, look.body, fromLight / 0.8);
  return mix(lit, look.rim, std::pow(fromMiddle, 6));
}

double inkAt(int number, Point at) {
  double distance = size;
  for (const auto& [digit, shift] : {std::pair(number / 10, -1), std::pair(number % 10, 1)}) {
    const double left = at.x - shift * digitAdvance / 2;
    // Beyond this no digit's stroke reaches.
    if (std::abs(left) > 0.5 * digitHeight || std::abs(at.y) > 0.65 * digitHeight) continue;
    const Point inDigit = {left / digitHeight, at.y / digitHeight};
    distance = std::min(distance, distanceTo(digitGlyph(digit), inDigit) * digitHeight);
  }
  return coverage(strokeHalf - distance);
}

Shade pixel(const Look& look, int number, Point at) {
  const double inside = coverage(radius - std::hypot(at.x, at.y));
  if (inside == 0) return {255, 255, 255};
  const Shade ball = mix(ballAt(look, at), look.ink, inkAt(number, at));
  return mix({255, 255, 255}, ball, inside);
}

void appendNumber(std::string& bytes, std::uint32_t number, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

/// File header and information header of an uncompressed 24-bit bitmap.
std::string bitmapHeaders() {
  constexpr std::uint32_t headers = 54;
  constexpr std::uint32_t pixels = size * size * 3;
  std::string bytes = "BM";
  for (std::uint32_t word : {headers + pixels, 0U, headers, 40U, std::uint32_t{size}, std::uint32_t{size}}) {
    appendNumber(bytes, word, 4);
  }
  appendNumber(bytes, 1, 2);
  appendNumber(bytes, 24, 2);
  constexpr std::uint32_t dotsPerMetre = 2835;
  for (std::uint32_t word : {0U, pixels, dotsPerMetre, dotsPerMetre, 0U, 0U}) appendNumber(bytes, word, 4);
  return bytes;
}

}  // namespace

std::string ballPictureName(BallKind kind, int number) {
  return pictureFileName(kind == BallKind::extra, twoDigits(number));
}

std::string ballPicture(BallKind kind, int number) {
  const Look& look = kind == BallKind::white ? whiteLook : extraLook;
  std::string bytes = bitmapHeaders();
  for (int y = size - 1; y >= 0; --y) {
    for (int x = 0; x < size; ++x) {
      const Shade shade = pixel(look, number, {x + 0.5 - middle, y + 0.5 - middle});
      for (double part : {shade.blue, shade.green, shade.red}) bytes += static_cast<char>(std::lround(part));
    }
  }
  return bytes;
}

}  // namespace tallywick::setup
