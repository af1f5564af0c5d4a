// SPDX-License-Identifier: GPL-3.0-or-later
// The summary of a game: its last fifteen draws and their amounts, the player's winning plays, the earlier
// draws, and the numbers that recur.
#pragma once

#include "controls/button_row.h"
#include "controls/controls.h"
#include "core/games.h"

#include <array>
#include <string>

namespace tallywick {

class DataFolder;

struct SummaryPage {
  explicit SummaryPage(Form& form);

  /// The heading of List1.
  Label Label15;
  /// The heading of List2.
  Label Label16;
  /// The heading of List3, in two lines.
  Label Label17;
  Label Label18;
  /// The heading of List4, in two lines.
  Label Label19;
  Label Label20;
  /// The heading of Command9 to Command14 and of List5, in two lines.
  Label Label21;
  Label Label22;
  /// The five headings of the Lucky Five section.
  Label Label27;
  Label Label28;
  Label Label29;
  Label Label30;
  Label Label31;

  /// The last fifteen draws and amounts.
  ListBox List1;
  /// The player's winning plays, or the Double Play draws.
  ListBox List2;
  /// The amounts.
  ListBox List3;
  /// The earlier draws.
  ListBox List4;
  /// The draws before the newest one that contain one of its numbers.
  ListBox List5;

  /// The newest draw's numbers, the extra ball last; the colour says which draw before it repeats one.
  ButtonRow<6> frequent;
};

/// Label15 to Label22.
void setSummaryHeadings(SummaryPage& page, const GameInfo& game);

/// What List1 shows where the winnings file is missing, empty or torn: an error, or blanks for the amounts
/// that cannot be read.
enum class MissingAmounts { raise, areBlank };

/// List1: the first fifteen draws, fewer where the file is shorter.
void fillLastFifteen(SummaryPage& page, const DataFolder& folder, const GameInfo& game,
                     MissingAmounts missing);

/// List2: the played plays that won in the draw of their own date. The play file's last record is not looked
/// at.
void fillWinningPlays(SummaryPage& page, const DataFolder& folder, const GameInfo& game);

/// List3: the amounts; for Mega Millions the Lucky Five prize lines follow.
void fillAmounts(SummaryPage& page, const DataFolder& folder, const GameInfo& game);

/// List4: every record of the search draws but the last.
void fillPreviousDraws(SummaryPage& page, const DataFolder& folder, const GameInfo& game);

/// The captions and colours of Command9 to Command14, and List5. Fewer than fifteen draws are error 62; what
/// there is has been shown then.
void fillFrequentNumbers(SummaryPage& page, const DataFolder& folder, const GameInfo& game);

/// The headings and lists of the Double Play display but for those of the search pages. Fewer than fifteen
/// draws are error 62.
void showDoublePlay(SummaryPage& page, const DataFolder& folder);

/// The newest draw's six numbers, as Command9 to Command14 show them.
std::array<std::string, 6> newestNumbers(const SummaryPage& page);

}  // namespace tallywick
