// The texts of the record book's files: every field in double quotes, CR LF at the end of a record.
#pragma once

#include "core/games.h"
#include "setup/book.h"

#include <string>
#include <vector>

namespace tallywick::setup {

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

std::string playsText(Game game, const std::vector<PlayEntry>& plays);

/// One quoted text a line.
std::string savedTexts(const std::vector<Balls>& texts);

/// The draw-day calendar from `first` to `last`, both included.
std::string calendarText(Day first, Day last);

}  // namespace tallywick::setup
