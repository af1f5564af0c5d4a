// SPDX-License-Identifier: GPL-3.0-or-later
// What a selection window asks before plays are saved or dropped.
#pragma once

#include <string>

class QWidget;

namespace tallywick {

class SelectionForm;

/// Finishes a change of the play files that was cut short, asks about what a Done would do beyond what the
/// window shows, and puts the answer into the form. False where the player wants none of it.
bool confirmDone(SelectionForm& form, QWidget* parent);

/// Asks before Select enters a play without numbers that Replay has left out of the text `replayed`.
bool confirmReplayed(const SelectionForm& form, const std::string& replayed);

/// Asks what becomes of selected plays that are not saved: Done saves them, they are dropped, or the window
/// stays. False where it is to stay.
bool settleUnsavedPlays(SelectionForm& form, QWidget* parent);

}  // namespace tallywick
