// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the plays' files and of the calendar: every field in double quotes, CR LF at the end of a
// record.
#pragma once

#include "core/games.h"
#include "setup/book.h"

#include <string>
#include <vector>

namespace tallywick::setup {

std::string playsText(Game game, const std::vector<PlayEntry>& plays);

/// One quoted text a line.
std::string savedTexts(const std::vector<Balls>& texts);

/// The draw-day calendar from `first` to `last`, both included.
std::string calendarText(Day first, Day last);

}  // namespace tallywick::setup
