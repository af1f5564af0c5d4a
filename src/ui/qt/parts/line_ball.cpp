// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_ball.h"

#include "ui/qt/parts/painted_once.h"
#include "ui/qt/parts/theme.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace tallywick {

namespace {

const QColor powerBallFill(200, 16, 46);
const QColor megaBallFill(250, 190, 20);

// All measures as shares of the ball's side.
constexpr double sideOfText = 1.4;
constexpr double digitHeight = 0.5;
/// On a coloured ball with a ring around it.
constexpr double ringedDigitHeight = 0.45;
constexpr double ringWidth = 0.1;
constexpr double outlineWidth = 0.04;
/// Between the rim of the area and a ball without a ring.
constexpr double rim = 0.06;

void drawShape(QPainter& painter, const QRectF& area, LineBallKind kind) {
  painter.drawPath(ballShape(area, kind == LineBallKind::squareGold));
}

QRectF inset(const QRectF& area, double by) {
  return area.adjusted(by, by, -by, -by);
}

bool isColored(const LineBall& ball) {
  return ball.kind != LineBallKind::white;
}

/// The ball without its number.
void paintShape(QPainter& painter, const QRectF& area, const LineBall& ball, const BallColors& colors) {
  const double side = area.width();
  painter.setRenderHint(QPainter::Antialiasing);
  const double ring = std::max(2.0, side * ringWidth);
  const double outline = std::max(1.0, side * outlineWidth);
  if (ball.lit) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colors.caps, ring));
    drawShape(painter, inset(area, ring / 2), ball.kind);
  }
  painter.setBrush(colors.ground);
  if (ball.lit)
    painter.setPen(Qt::NoPen);
  else
    painter.setPen(QPen(colors.outline, outline));
  // Between the ring and a coloured ball the ground is seen.
  const double gap = isColored(ball) ? outline * 0.75 : 0;
  drawShape(painter, inset(area, ball.lit ? ring + gap : side * rim + outline / 2), ball.kind);
}

}  // namespace

LineBallKind extraBallOf(Game game) {
  return game == Game::powerBall ? LineBallKind::roundRed : LineBallKind::squareGold;
}

QColor fillOf(LineBallKind kind, const QPalette& palette) {
  if (kind == LineBallKind::white) return unmarkedFill(palette);
  return kind == LineBallKind::roundRed ? powerBallFill : megaBallFill;
}

int lineBallSide(const QFontMetricsF& text) {
  return static_cast<int>(std::lround(text.height() * sideOfText));
}

BallColors lineBallColors(LineBallKind kind, const QColor& ground, const QPalette& palette) {
  BallColors colors;
  colors.ground = fillOf(kind, palette);
  colors.text = theme::readableOn(colors.ground);
  colors.outline =
      theme::standingOutFrom(ground, theme::mixed(colors.ground, ground, 0.2), theme::shapeContrast);
  colors.caps = theme::standingOutFrom(ground, theme::winning, theme::textContrast);
  return colors;
}

void paintLineBall(QPainter& painter, const QRectF& area, const LineBall& ball, const BallColors& colors) {
  painter.save();
  const Looks looks = {'l',
                       static_cast<std::uint32_t>(ball.kind),
                       ball.lit ? 1U : 0U,
                       colors.ground.rgba(),
                       colors.outline.rgba(),
                       colors.caps.rgba()};
  paintOnce(painter, area, looks,
            [&](QPainter& to, const QRectF& place) { paintShape(to, place, ball, colors); });
  QFont face = QGuiApplication::font();
  face.setBold(true);
  const double digits = ball.lit && isColored(ball) ? ringedDigitHeight : digitHeight;
  face.setPixelSize(std::max(7, static_cast<int>(area.width() * digits)));
  painter.setFont(face);
  painter.setPen(colors.text);
  painter.drawText(area, Qt::AlignCenter, ball.number);
  painter.restore();
}

}  // namespace tallywick
