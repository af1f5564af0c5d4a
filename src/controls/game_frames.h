// SPDX-License-Identifier: GPL-3.0-or-later
// The frames of the main window. The visible game frame tells the handlers which game is meant.
#pragma once

#include "controls/controls.h"

namespace tallywick {

struct GameFrames {
  explicit GameFrames(Form& form)
      : Frame1(form, "Frame1"),
        Frame4(form, "Frame4"),
        Frame5(form, "Frame5"),
        Frame6(form, "Frame6"),
        Frame9(form, "Frame9"),
        Frame11(form, "Frame11"),
        Frame12(form, "Frame12") {}

  Frame Frame1;
  /// PowerBall.
  Frame Frame4;
  /// The leftover state game; nothing shows it any more.
  Frame Frame5;
  /// PowerBall Double Play.
  Frame Frame6;
  Frame Frame9;
  /// Mega Millions.
  Frame Frame11;
  /// The headings of the Lucky Five section, shown with Mega Millions.
  Frame Frame12;
};

}  // namespace tallywick
