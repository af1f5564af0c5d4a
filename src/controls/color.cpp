// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/color.h"

#include <string_view>

namespace tallywick {

std::string Color::text() const {
  if (kind == Kind::buttonFace) return "buttonFace";
  if (kind == Kind::threeDLight) return "3dLight";
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text = "#";
  for (const std::uint8_t part : {red, green, blue}) {
    text += digits[part >> 4U];
    text += digits[part & 0xFU];
  }
  return text;
}

}  // namespace tallywick
