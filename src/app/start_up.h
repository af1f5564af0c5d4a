// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window does when it is created.
#pragma once

#include "app/main_form.h"

namespace tallywick {

/// Opens the main window on PowerBall and fills its summary, its pickers and its chart. A step that fails is
/// skipped: what it feeds stays empty or partly filled.
void startUp(MainForm& form, const DataFolder& folder);

}  // namespace tallywick
