// SPDX-License-Identifier: GPL-3.0-or-later
// The winning-ticket check: which of the played plays won.
#pragma once

#include "controls/controls.h"
#include "core/draws.h"
#include "core/games.h"
#include "core/plays.h"
#include "frames/game_frames.h"

#include <string>
#include <string_view>

namespace tallywick {

class DataFolder;

struct WinningsPage {
  explicit WinningsPage(Form& form);

  /// The played plays, of which a check emphasises the winners.
  ListBox List14;
  /// The committed plays.
  ListBox List17;

  /// Chooses the check of all plays against the newest draw.
  OptionButton Option1;
  /// Chooses the check of each play against the draw of its own date.
  OptionButton Option2;
  Button Command47;
  /// The verdict.
  ComboBox Combo10;
  /// The winning plays of the check by date, and a Double Play win.
  ListBox List10;
  /// The winning tickets.
  ListBox List11;
};

/// In each line of the results that says that a play has won.
inline constexpr std::string_view winningTicket = "Winning Ticket";

/// A point for each white ball of the draw found among the play's, five for the extra ball. It wins with 3 or
/// more.
int matchScore(const Play& play, const Draw& draw);
inline constexpr int winningScore = 3;

/// The files of a check, as the handlers write them.
struct TicketFiles {
  std::string plays;
  std::string draws;
  /// Empty where the game has no Double Play.
  std::string doublePlays;
};
TicketFiles ticketFilesOf(const GameInfo& game);
/// A leftover state game that no control checks.
TicketFiles hoosierTicketFiles();

/// Checks every play against the newest draw; then, where the game has it, the first play against the newest
/// Double Play draw. An empty draw file is error 62.
void checkAgainstLatestDraw(WinningsPage& page, const DataFolder& folder, const TicketFiles& files);

/// Checks every play against the first draw of its own date; a play without one is passed over.
void checkByDate(WinningsPage& page, const DataFolder& folder, const TicketFiles& files);

/// Chooses the check of all plays against the newest draw.
void Option1_Click(WinningsPage& page);
/// Chooses the check of each play against the draw of its own date.
void Option2_Click(WinningsPage& page);

/// Runs the check that the options and the visible game frame ask for; Double Play counts as PowerBall.
void Command47_Click(WinningsPage& page, const GameFrames& frames, const DataFolder& folder);

/// List14.
void fillPlayedPlays(WinningsPage& page, const DataFolder& folder, const GameInfo& game);
/// List17.
void fillCommittedPlays(WinningsPage& page, const DataFolder& folder, const GameInfo& game);

}  // namespace tallywick
