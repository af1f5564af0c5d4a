// SPDX-License-Identifier: GPL-3.0-or-later
// The pictures of numbered balls.
#pragma once

#include <string>

namespace tallywick::setup {

enum class BallKind { white, extra };

/// The file name of a ball's picture, for example "#07.bmp" or "%07.bmp".
std::string ballPictureName(BallKind kind, int number);

/// A 24-bit bitmap, 64 by 64, of the ball with a two-digit number on it; white around the ball.
std::string ballPicture(BallKind kind, int number);

}  // namespace tallywick::setup
