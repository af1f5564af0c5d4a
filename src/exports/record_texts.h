// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of a game folder's draw and amount files.
#pragma once

#include "exports/entries.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tallywick::exports {

/// The displays read fifteen draws without looking for the end of the file.
inline constexpr std::size_t shownDraws = 15;

/// A draw history of ten-field records.
std::string drawsText(const std::vector<DrawEntry>& draws);

/// The charts read a hundred draws without looking for the end of the file.
inline constexpr std::size_t chartedDraws = 100;

/// The Double Play history: the draws whose Double Play numbers are known. Where these are fewer than the
/// chart reads, further draws follow with the Double Play numbers left blank.
std::string doublePlayText(const std::vector<DrawEntry>& draws);

/// The winnings file. A draw that the displays show and that has no amount gets a blank one, or it would be
/// shown with another draw's. The oldest record stands twice, since the last record of the file is never
/// used.
std::string winningsText(std::vector<AmountEntry> amounts, const std::vector<DrawEntry>& draws);

}  // namespace tallywick::exports
