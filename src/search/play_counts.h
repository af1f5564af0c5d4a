// SPDX-License-Identifier: GPL-3.0-or-later
// The single-number counts: in which draws did one number come up, and how often.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "core/outside.h"
#include "frames/game_frames.h"

namespace tallywick {

class DataFolder;

/// "Have Played:", the first panel.
struct HavePlayedPage {
  explicit HavePlayedPage(Form& form);

  /// The draws to take numbers from.
  ComboBox Combo2;
  Button Command22;
  /// Command15 to Command20.
  ButtonRow<6> numbers;
  Button Command21;
  /// The draws counted.
  ComboBox Combo5;
  /// All draws of the game until a count empties it.
  ListBox List6;
  /// The tally: the number and how often it came up.
  Label Label23;
};

/// "Played:", for one number.
struct PlayedPage {
  explicit PlayedPage(Form& form);

  /// The draws to take a number from.
  ComboBox Combo3;
  /// Stays hidden; nothing shows it.
  Button Command24;
  Button Command29;
  /// Its caption is the number that Command30 counts; a press does nothing.
  Button Command23;
  Button Command30;
  /// The draws counted.
  ComboBox Combo6;
  /// All draws of the game until a count puts the draws counted here.
  ListBox List7;
  /// The tally: the number and how often it came up.
  Label Label24;
};

/// "Have Played:", the second set, whose numbers come from the player's played plays.
struct HavePlayedPlaysPage {
  explicit HavePlayedPlaysPage(Form& form);

  /// The played plays to take numbers from.
  ComboBox Combo8;
  Button Command45;
  /// The numbers to choose from, Command39 to Command44: a press marks or unmarks one.
  ButtonRow<6> numbers;
  Button Command46;
  /// The draws counted.
  ComboBox Combo9;
  /// All draws of the game.
  ListBox List9;
  /// The tally: the number and how often it came up.
  Label Label26;
};

/// Copies the numbers of Combo2's text onto the six number buttons and unmarks them.
void Command22_Click(HavePlayedPage& page, const GameFrames& frames);
/// Marks or unmarks the number, and enables Command21.
void havePlayedNumber_Click(HavePlayedPage& page, Button& number);
/// Counts in how many draws of the visible game the first marked number came up, and lists them.
void Command21_Click(HavePlayedPage& page, const GameFrames& frames, const DataFolder& folder,
                     MessageBoxes& boxes);

/// Copies the first number of Combo3's text onto Command23.
void Command29_Click(PlayedPage& page, const GameFrames& frames);
/// Counts in how many draws of the visible game the number of Command23 came up, and lists them.
void Command30_Click(PlayedPage& page, const GameFrames& frames, const DataFolder& folder,
                     MessageBoxes& boxes);

/// Puts the numbers of Combo8's text on the number buttons; their marks stay.
void setPlayCaptions(HavePlayedPlaysPage& page, const GameFrames& frames);
/// Copies the numbers of Combo8's text onto the six number buttons and unmarks them.
void Command45_Click(HavePlayedPlaysPage& page, const GameFrames& frames);
/// Counts in how many draws of the visible game the first marked number came up, and lists them. Kept slip:
/// clears the first panel's Combo5 as well.
void Command46_Click(HavePlayedPlaysPage& page, ComboBox& Combo5, const GameFrames& frames,
                     const DataFolder& folder, MessageBoxes& boxes);

}  // namespace tallywick
