// SPDX-License-Identifier: GPL-3.0-or-later
// The handlers of the selection windows, each named after its event.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tallywick {

class SelectionForm;

/// How many draws a caption of the draw count means, 1 to 10.
int drawCountOf(std::string_view caption);

/// Steps the mark of the number: main, extra where it may be one, none.
void Number_Click(SelectionForm& form, int number);

/// Select: checks the marked numbers and adds them to the current plays, dated for their draw.
void Command59_Click(SelectionForm& form);

/// Quick Pick: marks a random play.
void Command9_Click(SelectionForm& form);

/// Finishes what an earlier change of the play files left behind, before their plays are asked about. False
/// where another program is at work there; the player has been shown a message then.
bool finishEarlierChange(const SelectionForm& form);

/// Whether the list of current plays shows what their file contains. Another program, or another window on
/// the same folder, may have changed the file.
bool showsCurrentPlays(const SelectionForm& form);

/// The committed plays that are not among those that Done would commit now.
struct GoingPlays {
  std::size_t plays = 0;
  /// The same plays as records, for whoever judges them.
  std::string records;
  /// Whether their file has a torn record besides.
  bool isTorn = false;
};

/// None where the calendar has a gap, which Done itself reports.
GoingPlays playsThatWouldGo(const SelectionForm& form);

/// Done: the current plays replace the committed ones, once for each draw of the draw count, or come before
/// them, as SelectionForm::earlierPlays says. Committed plays that are not among the new ones stay as a dated
/// copy.
void Command5_Click(SelectionForm& form);

/// Replay: marks the play that the history list shows.
void Command60_Click(SelectionForm& form);

/// Clear: takes all marks off.
void Command84_Click(SelectionForm& form);

/// Draw: begins the entry of a draw count.
void Command1_Click(SelectionForm& form);

/// Steps the draw count, from one to ten and back to one.
void Command4_Click(SelectionForm& form);

/// Shows the draw count where it is hidden. Nothing shows this button.
void Command7_Click(SelectionForm& form);

}  // namespace tallywick
