// SPDX-License-Identifier: GPL-3.0-or-later
// The lists of a selection window and the play files behind them.
#pragma once

#include "core/games.h"

#include <filesystem>
#include <string>

namespace tallywick {

class PlayFile;
class SelectionForm;

/// The real folder of the window's game.
std::filesystem::path gameFolder(const SelectionForm& form);

/// Drops the plays that were selected and not committed. The folder's lock is the caller's.
void emptyCurrentPlays(SelectionForm& form);

/// The text of the current plays with a line end behind the last record, which other programs may leave away
/// or replace by a comma. A comma in front of an empty last field belongs to the record.
std::string endedText(const PlayFile& file);

/// Lists the committed plays of the first record's draw date.
void showNextPlays(SelectionForm& form);

/// Lists the play history and lets it be replayed where it has a record.
void showHistory(SelectionForm& form, const PlayFile& history);

void showSavedTexts(SelectionForm& form);

}  // namespace tallywick
