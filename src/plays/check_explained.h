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

struct CheckExplained {
  /// What the judging says of the plays, or that nothing was checked.
  std::string headline;
  /// Why the check's verdict line says otherwise; empty where it does not.
  std::string verdict;
  /// A sentence for each other way in which the check differs.
  std::vector<std::string> more;
};

/// Of the check that `page` shows; to be asked right after it, with a judgement of the same files.
CheckExplained checkExplained(const WinningsPage& page, const GameInfo& game, const Judgement& judgement);

}  // namespace tallywick
