// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the newest draw that the five draws before it held already: colours on the number buttons
// and lines in a list.
#pragma once

#include "controls/button_row.h"
#include "core/draws.h"

#include <span>
#include <string_view>

namespace tallywick {

/// A draw as the summary keeps it: its six numbers and the record's last field, which counts as a number too.
struct KeptDraw {
  Draw draw;
  std::string_view lastField;
};

/// Puts the newest draw on the buttons, the extra ball last. A white ball that an earlier draw repeats
/// colours its button, the oldest repeat last, and adds three lines to `hits`. `newestFirst` may be shorter
/// than six draws; where it is empty the buttons stay as they are.
void showRecurringNumbers(std::span<const KeptDraw> newestFirst, ButtonRow<6>& buttons, ListBox& hits);

}  // namespace tallywick
