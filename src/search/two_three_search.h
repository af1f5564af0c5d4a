// SPDX-License-Identifier: GPL-3.0-or-later
// The two/three-number search: which draws contain these two or three numbers together.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "core/outside.h"

namespace tallywick {

class DataFolder;

struct TwoThreePage {
  explicit TwoThreePage(Form& form);

  /// The draws to take numbers from.
  ComboBox Combo4;
  Button Command37;
  /// The numbers to search for, positions 1 to 6, the sixth the extra ball: a press marks or unmarks one.
  ButtonRow<6> numbers;
  Button Command38;
  Button Command25;
  Button Command26;
  /// The draws found; its text is the first of them.
  ComboBox Combo7;
  /// All draws of the game until a search puts the draws found here.
  ListBox List8;
  /// The tally: the numbers searched for and how many draws contain them.
  Label Label25;
};

/// Copies the numbers of Combo4's text onto the six number buttons and unmarks them.
void Command37_Click(TwoThreePage& page);

/// Lists the PowerBall draws that contain the marked two or three numbers, and counts them.
void Command38_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);
/// Lists and counts them in the Mega Millions draws.
void Command25_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);
/// Lists and counts them in the Double Play draws of PowerBall.
void Command26_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);

/// Two members of the family that no button starts.
void SearchOneTwoThreeMega(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);
void SearchOneTwoThreeHoosier(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);

}  // namespace tallywick
