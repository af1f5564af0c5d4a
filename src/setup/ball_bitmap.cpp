// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/ball_bitmap.h"

#include "core/games.h"
#include "core/text.h"
#include "setup/digits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace tallywick::setup {

namespace {

constexpr int size = 64;
constexpr std::size_t pixels = size * size;
constexpr std::uint32_t headerBytes = 54;
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

Point pointOf(std::size_t pixel) {
  const auto at = [](std::size_t place) { return static_cast<double>(place) + 0.5 - middle; };
  return {at(pixel % size), at(pixel / size)};
}

/// What `of` says of each pixel, from the upper left.
template <typename Of>
auto ofEachPixel(Of of) {
  std::array<decltype(of(Point())), pixels> values;
  for (std::size_t i = 0; i < pixels; ++i) values[i] = of(pointOf(i));
  return std::make_unique<const decltype(values)>(values);
}

/// How far each pixel is from the strokes of a digit.
using Distances = std::array<double, pixels>;

enum class Side { left, right };

/// The distances of one digit are the same in all pictures: they are found once.
const Distances& distancesTo(int digit, Side side) {
  static std::array<std::array<std::unique_ptr<const Distances>, 10>, 2> found;
  auto& distances = found[side == Side::left ? 0 : 1].at(static_cast<std::size_t>(digit));
  const double shift = (side == Side::left ? -1 : 1) * digitAdvance / 2;
  if (distances == nullptr) {
    distances = ofEachPixel([&](Point at) -> double {
      const double x = at.x - shift;
      // Beyond this no digit's stroke reaches.
      if (std::abs(x) > 0.5 * digitHeight || std::abs(at.y) > 0.65 * digitHeight) return size;
      return distanceTo(digitGlyph(digit), {x / digitHeight, at.y / digitHeight}) * digitHeight;
    });
  }
  return *distances;
}

/// A ball without a number, and how much of each pixel is inside of it.
struct BareBall {
  explicit BareBall(const Look& from)
      : look(from),
        shades(ofEachPixel([&](Point at) { return ballAt(from, at); })),
        inside(ofEachPixel([](Point at) { return coverage(radius - std::hypot(at.x, at.y)); })) {}

  const Look& look;
  std::unique_ptr<const std::array<Shade, pixels>> shades;
  std::unique_ptr<const std::array<double, pixels>> inside;
};

const BareBall& bareBall(BallKind kind) {
  static const BareBall white(whiteLook);
  static const BareBall extra(extraLook);
  return kind == BallKind::white ? white : extra;
}

void appendNumber(std::string& bytes, std::uint32_t number, int count) {
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

/// File header and information header of an uncompressed 24-bit bitmap.
std::string bitmapHeaders() {
  constexpr std::uint32_t pixelBytes = pixels * 3;
  std::string bytes = "BM";
  for (std::uint32_t word :
       {headerBytes + pixelBytes, 0U, headerBytes, 40U, std::uint32_t{size}, std::uint32_t{size}}) {
    appendNumber(bytes, word, 4);
  }
  appendNumber(bytes, 1, 2);
  appendNumber(bytes, 24, 2);
  constexpr std::uint32_t dotsPerMetre = 2835;
  for (std::uint32_t word : {0U, pixelBytes, dotsPerMetre, dotsPerMetre, 0U, 0U})
    appendNumber(bytes, word, 4);
  return bytes;
}

/// Sets a pixel with so much ink on it. The lowest line of a bitmap comes first.
void paint(std::string& bytes, const BareBall& ball, std::size_t pixel, double ink) {
  const Shade inked = mix((*ball.shades)[pixel], ball.look.ink, ink);
  const Shade shade = mix({255, 255, 255}, inked, (*ball.inside)[pixel]);
  std::size_t at = headerBytes + ((size - 1 - pixel / size) * size + pixel % size) * 3;
  for (double part : {shade.blue, shade.green, shade.red}) bytes[at++] = static_cast<char>(std::lround(part));
}

std::string barePicture(const BareBall& ball) {
  std::string bytes = bitmapHeaders();
  bytes.resize(headerBytes + pixels * 3);
  for (std::size_t i = 0; i < pixels; ++i) paint(bytes, ball, i, 0);
  return bytes;
}

}  // namespace

std::string ballPictureName(BallKind kind, int number) {
  return pictureFileName(kind == BallKind::extra, twoDigits(number));
}

std::string ballPicture(BallKind kind, int number) {
  static const std::string white = barePicture(bareBall(BallKind::white));
  static const std::string extra = barePicture(bareBall(BallKind::extra));
  const Distances& left = distancesTo(number / 10, Side::left);
  const Distances& right = distancesTo(number % 10, Side::right);
  std::string bytes = kind == BallKind::white ? white : extra;
  for (std::size_t i = 0; i < pixels; ++i) {
    const double ink = coverage(strokeHalf - std::min(left[i], right[i]));
    if (ink > 0) paint(bytes, bareBall(kind), i, ink);
  }
  return bytes;
}

}  // namespace tallywick::setup
