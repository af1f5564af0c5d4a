// SPDX-License-Identifier: GPL-3.0-or-later
// Colours of buttons and bars: red, green and blue, or a colour of the system.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tallywick {

struct Color {
  enum class Kind : std::uint8_t { rgb, buttonFace, threeDLight };

  Kind kind = Kind::buttonFace;
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  static constexpr Color rgb(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return {Kind::rgb, red, green, blue};
  }
  constexpr bool operator==(const Color&) const = default;

  /// "#RRGGBB", "buttonFace" or "3dLight".
  std::string text() const;
};

namespace colors {

/// Unmarked, on the main window.
inline constexpr Color buttonFace = {Color::Kind::buttonFace};
/// Unmarked, in the selection windows.
inline constexpr Color threeDLight = {Color::Kind::threeDLight};
/// The mark of a number; in the selection windows that of a main number.
inline constexpr Color cyan = Color::rgb(0, 255, 255);
/// The mark of the extra ball in the selection windows.
inline constexpr Color magenta = Color::rgb(255, 0, 255);

/// The colours of recurring numbers.
inline constexpr Color red = Color::rgb(255, 0, 0);
inline constexpr Color lightBlue = Color::rgb(128, 128, 255);
inline constexpr Color green = Color::rgb(0, 255, 0);
inline constexpr Color yellow = Color::rgb(255, 255, 0);
inline constexpr Color lightCyan = Color::rgb(192, 255, 255);
/// By how many draws before the newest one the number came up, from one.
inline constexpr std::array<Color, 5> recurring = {red, lightBlue, green, yellow, lightCyan};

}  // namespace colors

}  // namespace tallywick
