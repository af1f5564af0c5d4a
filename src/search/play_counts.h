// SPDX-License-Identifier: GPL-3.0-or-later
// The single-number counts: in which draws did one number come up, and how often.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "core/surroundings.h"
#include "frames/game_frames.h"

namespace tallywick {

class DataFolder;

/// "Have Played:", the first panel.
struct HavePlayedPage {
  explicit HavePlayedPage(Form& form);

  ComboBox Combo2;
  Button Command22;
  /// Command15 to Command20.
  ButtonRow<6> numbers;
  Button Command21;
  ComboBox Combo5;
  ListBox List6;
  Label Label23;
};

/// "Played:", for one number.
struct PlayedPage {
  explicit PlayedPage(Form& form);

  ComboBox Combo3;
  /// Stays hidden; nothing shows it.
  Button Command24;
  Button Command29;
  /// Its caption is the number.
  Button Command23;
  Button Command30;
  ComboBox Combo6;
  ListBox List7;
  Label Label24;
};

/// "Have Played:", the second set, whose numbers come from the player's played plays.
struct HavePlayedPlaysPage {
  explicit HavePlayedPlaysPage(Form& form);

  ComboBox Combo8;
  Button Command45;
  /// Command39 to Command44.
  ButtonRow<6> numbers;
  Button Command46;
  ComboBox Combo9;
  ListBox List9;
  Label Label26;
};

void Command22_Click(HavePlayedPage& page, const GameFrames& frames);
/// A press of one of Command15 to Command20.
void havePlayedNumber_Click(HavePlayedPage& page, Button& number);
void Command21_Click(HavePlayedPage& page, const GameFrames& frames, const DataFolder& folder,
                     MessageBoxes& boxes);

/// Command24 and Command29.
void Command29_Click(PlayedPage& page, const GameFrames& frames);
void Command30_Click(PlayedPage& page, const GameFrames& frames, const DataFolder& folder,
                     MessageBoxes& boxes);

/// Puts the numbers of Combo8's text on the number buttons; their marks stay.
void setPlayCaptions(HavePlayedPlaysPage& page, const GameFrames& frames);
/// The same, and unmarks the buttons.
void Command45_Click(HavePlayedPlaysPage& page, const GameFrames& frames);
/// Kept slip: clears the first panel's Combo5 as well.
void Command46_Click(HavePlayedPlaysPage& page, ComboBox& Combo5, const GameFrames& frames,
                     const DataFolder& folder, MessageBoxes& boxes);

}  // namespace tallywick
