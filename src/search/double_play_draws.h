// SPDX-License-Identifier: GPL-3.0-or-later
// The Double Play draws that truly have the marked numbers. The search keeps its own reading of their file
// beside this.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "controls/text_lines.h"

namespace tallywick {

class DataFolder;

/// Gives `lines` the Double Play draws, in the order of their file, that have the numbers which a press would
/// search, among the balls where it would look for them. False where a press searches nothing, and where the
/// file cannot be read; a record that is cut off ends the list.
bool listDoublePlayDraws(const ButtonRow<6>& numbers, const DataFolder& folder, TextLines& lines);

}  // namespace tallywick
