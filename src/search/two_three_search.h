// SPDX-License-Identifier: GPL-3.0-or-later
// The two/three-number search: which draws held these two or three numbers together.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "core/surroundings.h"

namespace tallywick {

class DataFolder;

struct TwoThreePage {
  explicit TwoThreePage(Form& form);

  /// Draw lines to take numbers from.
  ComboBox Combo4;
  /// "Display": copies the numbers of Combo4's text into the number buttons.
  Button Command37;
  /// Command31 to Command36: positions 1 to 6, the sixth the extra ball.
  ButtonRow<6> numbers;
  Button Command38;
  Button Command25;
  Button Command26;
  ComboBox Combo7;
  ListBox List8;
  /// The tally.
  Label Label25;
};

void Command37_Click(TwoThreePage& page);

/// PowerBall.
void Command38_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);
/// Mega Millions.
void Command25_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);
/// PowerBall Double Play.
void Command26_Click(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);

/// Two members of the family that no button starts.
void SearchOneTwoThreeMega(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);
void SearchOneTwoThreeHoosier(TwoThreePage& page, const DataFolder& folder, MessageBoxes& boxes);

}  // namespace tallywick
