// The winning-ticket check: which of the played plays won.
#pragma once

#include "controls/controls.h"
#include "controls/game_frames.h"
#include "core/draws.h"
#include "core/games.h"
#include "core/plays.h"

namespace tallywick {

class DataFolder;

struct WinningsPage {
  explicit WinningsPage(Form& form);

  /// The played plays and the committed plays.
  ListBox List14;
  ListBox List17;

  /// The latest-draw check and the by-date check.
  OptionButton Option1;
  OptionButton Option2;
  Button Command47;
  /// The verdict.
  ComboBox Combo10;
  /// The winning plays' details, and the tickets.
  ListBox List10;
  ListBox List11;
};

/// A point for each white ball of the draw found among the play's, five for the extra ball. It wins with 3 or
/// more.
int matchScore(const Play& play, const Draw& draw);
inline constexpr int winningScore = 3;

/// Runs the check that the options and the visible game frame ask for.
void Command47_Click(WinningsPage& page, const GameFrames& frames, const DataFolder& folder);

void checkPowerBallLatest(WinningsPage& page, const DataFolder& folder);
void checkPowerBallByDate(WinningsPage& page, const DataFolder& folder);
void checkMegaMillionsLatest(WinningsPage& page, const DataFolder& folder);
void checkMegaMillionsByDate(WinningsPage& page, const DataFolder& folder);
/// Two checks of a leftover state game that no control starts.
void checkHoosierLatest(WinningsPage& page, const DataFolder& folder);
void checkHoosierByDate(WinningsPage& page, const DataFolder& folder);

/// List14 and List17: the played and the committed plays.
void fillPlayLists(WinningsPage& page, const DataFolder& folder, const GameInfo& game);

}  // namespace tallywick
