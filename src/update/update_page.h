// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the update and of the play-file maintenance.
#pragma once

#include "controls/controls.h"

namespace tallywick {

struct UpdatePage {
  explicit UpdatePage(Form& form);

  Button Command2;
  /// How far an update is.
  ProgressBar ProgressBar1;
  /// Panel 1: what the program is doing.
  StatusBar StatusBar1;
  Button Command1;
  Button Command51;
};

}  // namespace tallywick
