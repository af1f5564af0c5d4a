// SPDX-License-Identifier: GPL-3.0-or-later
// The frames of the main window. The visible game frame decides which game the handlers mean.
#pragma once

#include "controls/controls.h"
#include "core/games.h"

namespace tallywick {

struct GameFrames {
  explicit GameFrames(Form& form);

  /// Groups the left side of the summary: the draws and the frequent numbers.
  Frame Frame1;
  /// Visible while the game is PowerBall.
  Frame Frame4;
  /// The leftover state game's; nothing shows it any more.
  Frame Frame5;
  /// Visible while the game is PowerBall Double Play.
  Frame Frame6;
  /// Groups the right side of the summary: the plays, the amounts and the previous draws.
  Frame Frame9;
  /// Visible while the game is Mega Millions.
  Frame Frame11;
  /// The headings of the Lucky Five section, shown with Mega Millions.
  Frame Frame12;
};

/// The game whose frame is visible, PowerBall with its Double Play too; null where neither game is on show.
const GameInfo* gameOnShow(const GameFrames& frames);

}  // namespace tallywick
