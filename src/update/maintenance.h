// Play-file maintenance: plays whose draw has taken place move from the committed plays to the front of the
// history.
#pragma once

#include "controls/surroundings.h"
#include "core/games.h"

namespace tallywick {

class DataFolder;

/// PowerBall.
void Command1_Click(const DataFolder& folder, ProgramStarter& programs);
/// Mega Millions.
void Command51_Click(const DataFolder& folder, ProgramStarter& programs);

}  // namespace tallywick
