// SPDX-License-Identifier: GPL-3.0-or-later
// What a selection window asks before plays are saved or dropped.
#pragma once

class QWidget;

namespace tallywick {

class SelectionForm;

/// Finishes a change of the play files that was cut short, asks about what a Done would do beyond what the
/// window shows, and puts the answer into the form. False where the player wants none of it.
bool confirmDone(SelectionForm& form, QWidget* parent);

/// Asks where selected plays that are not saved would be dropped. False where they are not to be.
bool confirmDroppingPlays(const SelectionForm& form, QWidget* parent);

}  // namespace tallywick
