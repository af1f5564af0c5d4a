// SPDX-License-Identifier: GPL-3.0-or-later
// The draw count: for how many draws the current plays are entered.
#pragma once

#include <string_view>

namespace tallywick {

/// The caption that means one draw.
inline constexpr std::string_view oneDraw = "    ";

/// How many draws a caption means, 1 to 10.
int drawCountOf(std::string_view caption);

}  // namespace tallywick
