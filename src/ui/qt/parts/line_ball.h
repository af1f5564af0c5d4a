// SPDX-License-Identifier: GPL-3.0-or-later
// The small balls in the lines of lists. An extra ball has the colour and the shape of its game; a number
// that was found or matched has a thick ring, so that it is seen without colours too.
#pragma once

#include "core/games.h"
#include "ui/qt/parts/ball.h"

class QFontMetricsF;

namespace tallywick {

enum class LineBallKind { white, roundRed, squareGold };

LineBallKind extraBallOf(Game game);

QColor fillOf(LineBallKind kind, const QPalette& palette);

/// The side of the square that a ball takes in a line of text.
int lineBallSide(const QFontMetricsF& text);
inline constexpr int betweenLineBalls = 3;

/// On a line whose ground is `ground`. The caps' colour is that of the ring.
BallColors lineBallColors(LineBallKind kind, const QColor& ground, const QPalette& palette);

struct LineBall {
  QString number;
  LineBallKind kind = LineBallKind::white;
  bool lit = false;

  bool operator==(const LineBall&) const = default;
};

void paintLineBall(QPainter& painter, const QRectF& area, const LineBall& ball, const BallColors& colors);

}  // namespace tallywick
