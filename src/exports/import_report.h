// SPDX-License-Identifier: GPL-3.0-or-later
// Reading export files, and what is reported to the user about a merge.
#pragma once

#include "core/games.h"
#include "exports/merge.h"

#include <filesystem>
#include <iosfwd>

namespace tallywick::exports {

/// Reads an export file in pieces. std::runtime_error with the file's name where it cannot be used at all.
ExportedDraws readDrawsFile(Game game, const std::filesystem::path& file, Day today);
ExportedAmounts readAmountsFile(Game game, const std::filesystem::path& file, Day today);

/// Prints what was new, changed, refused and is missing, each line behind two blanks. Long lists are cut: at
/// most twenty refused rows, and more than twenty missing draws as ranges, of which at most twenty are
/// printed.
void print(const MergeReport& report, Game game, std::ostream& out);

}  // namespace tallywick::exports
