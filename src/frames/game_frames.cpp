// SPDX-License-Identifier: GPL-3.0-or-later
#include "frames/game_frames.h"

namespace tallywick {

GameFrames::GameFrames(Form& form)
    : Frame1(form, "Frame1"),
      Frame4(form, "Frame4"),
      Frame5(form, "Frame5"),
      Frame6(form, "Frame6"),
      Frame9(form, "Frame9"),
      Frame11(form, "Frame11"),
      Frame12(form, "Frame12") {}

const GameInfo* gameOnShow(const GameFrames& frames) {
  if (frames.Frame4.visible() || frames.Frame6.visible()) return &powerBall;
  return frames.Frame11.visible() ? &megaMillions : nullptr;
}

}  // namespace tallywick
