// The selection window of a game: a grid of numbers on which a player builds plays.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "controls/surroundings.h"
#include "core/clock.h"
#include "core/data_folder.h"
#include "core/games.h"
#include "core/random.h"

#include <memory>
#include <vector>

namespace tallywick {

/// What a selection window works with.
struct SelectionSurroundings {
  const DataFolder& folder;
  const Clock& clock;
  RandomGenerator& random;
  MessageBoxes& boxes;
};

class SelectionForm : public Form {
 public:
  /// Form3 for PowerBall, Form5 for Mega Millions. Its buttons are wired to their handlers; load() is still
  /// to come.
  SelectionForm(const GameInfo& game, SelectionSurroundings surroundings);

  /// What opening the window does: empties the current selections and fills the lists.
  void load();

  const GameInfo& game;
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
  Label Label1;
  Label Label3;
  ComboBox Combo1;
  Label Label28;
  ComboBox Combo7;
  Label Label29;
  ComboBox Combo8;
  ListBox List1;
  StatusBar StatusBar1;
};

}  // namespace tallywick
