// SPDX-License-Identifier: GPL-3.0-or-later
// The selection window of a game: a grid of numbers on which a player builds plays.
#pragma once

#include "controls/controls.h"
#include "core/clock.h"
#include "core/data_folder.h"
#include "core/games.h"
#include "core/outside.h"
#include "core/random.h"
#include "selection/selection_rules.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace tallywick {

/// A number's mark is its button's back colour.
enum class Mark : std::uint8_t { none, main, extra };

Mark markOf(const Button& button);
void setMark(Button& button, Mark mark);

/// The caption of the draw count that means one draw.
inline constexpr std::string_view oneDraw = "    ";

/// What a selection window works with.
struct SelectionSurroundings {
  const DataFolder& folder;
  const Clock& clock;
  RandomGenerator& random;
  MessageBoxes& boxes;
};

/// What Done does with committed plays that are not among the new ones.
enum class EarlierPlays : std::uint8_t {
  replaced,  ///< they stay in a dated copy alone
  kept       ///< they follow the new ones
};

class SelectionForm : public Form {
 public:
  /// Form3 for PowerBall, Form5 for Mega Millions. Its buttons are wired to their handlers; load() is still
  /// to come.
  SelectionForm(const GameInfo& game, SelectionSurroundings surroundings);

  /// What opening the window does: empties the current selections and fills the lists. False where another
  /// program is changing the play files: the player has been shown a message, the selections stay and the
  /// window takes no plays.
  bool load();

  /// Takes the marks off all numbers.
  void unmarkAll();

  /// Lets the window accept no further plays until it is opened again.
  void closeForPlays();

  /// The button of a number, from 1.
  Button& button(int number) { return *numbers[static_cast<std::size_t>(number - 1)]; }
  const Button& button(int number) const { return *numbers[static_cast<std::size_t>(number - 1)]; }

  /// A window may ask the player before Done; without one the earlier plays are replaced.
  EarlierPlays earlierPlays = EarlierPlays::replaced;

  const GameInfo& game;
  const SelectionRules& rules;
  SelectionSurroundings surroundings;

  /// One button a number, "01" first. A number is also an alias of its button.
  std::vector<std::unique_ptr<Button>> numbers;

  Button Command59;
  Button Command9;
  Button Command5;
  Button Command60;
  Button Command84;
  Button Command1;
  Button Command4;
  Button Command7;
  /// The draw count: blank means one draw.
  Label Label1;
  /// The heading of Combo1.
  Label Label3;
  /// The plays selected since the window was opened.
  ComboBox Combo1;
  /// The heading of Combo7.
  Label Label28;
  /// The play history; Replay takes the play in its text.
  ComboBox Combo7;
  /// The heading of Combo8.
  Label Label29;
  /// The committed plays for the next draw date.
  ComboBox Combo8;
  /// Saved play texts.
  ListBox List1;
  /// The counts of history plays, of current plays, and of committed plays for the first draw date.
  StatusBar StatusBar1;

 private:
  void makeNumbers();
  void wire();
};

}  // namespace tallywick
