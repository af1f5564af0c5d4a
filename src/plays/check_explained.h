// SPDX-License-Identifier: GPL-3.0-or-later
// The winning-ticket check has slips that are kept on purpose. Beside its verdict a window says what the
// judging says, and why the two differ.
#pragma once

#include "core/games.h"

#include <string>
#include <vector>

namespace tallywick {

struct Judgement;
struct WinningsPage;

/// What the judging says of the plays, then a sentence for each way in which the check that `page` shows says
/// otherwise. To be asked right after the check, with a judgement of the same files.
std::vector<std::string> checkExplained(const WinningsPage& page, const GameInfo& game,
                                        const Judgement& judgement);

}  // namespace tallywick
