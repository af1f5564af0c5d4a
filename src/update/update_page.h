// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the update and of the play-file maintenance.
#pragma once

#include "controls/controls.h"

#include <string_view>

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

/// What an update hides and disables, as it was before the update.
class UpdateControls {
 public:
  UpdateControls(UpdatePage& page, MenuEntry& mnuPowerBall2, MenuEntry& mnuMegaMillions2);

  /// Lets the user update again after an update that has ended early; panel 1 says `note`.
  void giveBack(std::string_view note) const;

 private:
  UpdatePage& page_;
  MenuEntry& mnuPowerBall2_;
  MenuEntry& mnuMegaMillions2_;
  bool powerBallEnabled_;
  bool megaMillionsEnabled_;
};

}  // namespace tallywick
