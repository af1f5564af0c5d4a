// SPDX-License-Identifier: GPL-3.0-or-later
// What prevents plays for now, shown to the player while everything stays as it is.
#pragma once

#include "core/runtime_error.h"
#include "selection/draw_dates.h"
#include "selection/selection_form.h"

#include <string>

namespace tallywick {

/// Runs `enter`, which changes play files. False where it meets a gap in the calendar, or what another
/// program has done or is doing to the play files; the player has been shown a message then. Every other
/// failure is raised.
template <typename Enter>
bool tryToEnter(const SelectionForm& form, Enter enter) {
  std::string obstacle;
  try {
    enter();
    return true;
  } catch (const CalendarGap& gap) {
    obstacle = gap.what();
  } catch (const LockedByAnother&) {
    obstacle = "Another program is changing the play files. Nothing was saved. Please try again.";
  }
  showMessage(form.surroundings.boxes, obstacle, MessageBox::Icon::exclamation);
  return false;
}

}  // namespace tallywick
