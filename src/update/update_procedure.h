// SPDX-License-Identifier: GPL-3.0-or-later
// The update procedure: both games, or one, from the update server.
#pragma once

#include "controls/controls.h"
#include "core/clock.h"
#include "core/games.h"
#include "core/outside.h"
#include "update/transfer_component.h"
#include "update/update_page.h"

#include <functional>
#include <string>

namespace tallywick {

class DataFolder;

/// What an update works on and with.
struct UpdateSurroundings {
  UpdatePage& page;
  MenuEntry& mnuPowerBall2;
  MenuEntry& mnuMegaMillions2;
  const DataFolder& folder;
  const Clock& clock;
  MessageBoxes& boxes;
  Screen& screen;
  ProgramStarter& programs;
  /// Where a game's update comes from: host and port of the update server, or the address of an export.
  std::function<std::string(Game game)> serverOf;
  TransferFactory newTransfer;
  /// Redraws the play-number pictures.
  std::function<void()> refreshPictures;
};

/// Whether Command2_Click refuses an update now: up to 07:00:00.
bool updatesAreClosed(const Clock& clock);

/// Updates both games; refused up to 07:00:00. A failure ends it at once: the games that have come down
/// stay. Where the transfer's watch cancels it, TransferCancelled passes through, and the controls let the
/// user update again.
void Command2_Click(UpdateSurroundings& update);
/// Updates PowerBall alone, at any time.
void mnuPowerBall2_Click(UpdateSurroundings& update);
/// Updates Mega Millions alone, at any time.
void mnuMegaMillions2_Click(UpdateSurroundings& update);

}  // namespace tallywick
