// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/ball_picture.h"

#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/theme.h"

#include <QImage>
#include <QPainter>
#include <vector>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// The picture without the ground around its ball: what is connected with a corner in the corner's colour. A
/// picture with a ground of its own, or without one, stays as it is.
QPixmap withoutGround(const QPixmap& picture) {
  QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
  if (image.isNull()) return picture;
  const QRect all = image.rect();
  const QRgb ground = image.pixel(0, 0);
  for (const QPoint corner : {all.topRight(), all.bottomLeft(), all.bottomRight()}) {
    if (image.pixel(corner) != ground) return picture;
  }
  std::vector<QPoint> open = {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight()};
  while (!open.empty()) {
    const QPoint at = open.back();
    open.pop_back();
    if (!all.contains(at) || image.pixel(at) != ground || qAlpha(image.pixel(at)) == 0) continue;
    image.setPixel(at, qRgba(0, 0, 0, 0));
    for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
      open.push_back(at + step);
  }
  return qAlpha(image.pixel(all.center())) == 0 ? picture : QPixmap::fromImage(image);
}

}  // namespace

BallPicture::BallPicture(Game game, QWidget* parent) : QWidget(parent), game_(game) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void BallPicture::showNumber(const QString& number, bool isExtraBall, const QPixmap& picture) {
  number_ = number;
  isExtraBall_ = isExtraBall;
  picture_ = picture.isNull() ? picture : withoutGround(picture);
  const QString name = number.isEmpty() ? u"not shown yet"_s : number;
  setAccessibleName(isExtraBall ? u"extra ball %1"_s.arg(name) : name);
  update();
}

QSize BallPicture::sizeHint() const {
  const int side = 6 * theme::gap;
  return {side, side};
}

void BallPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  if (!picture_.isNull()) {
    const QSize size = picture_.size().scaled(rect().size(), Qt::KeepAspectRatio);
    painter.drawPixmap(QRect(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size),
                       picture_);
    return;
  }
  const LineBallKind kind = isExtraBall_ ? extraBallOf(game_) : LineBallKind::white;
  const QColor ground = theme::outlinedGround(palette());
  BallColors colors = lineBallColors(kind, ground, palette());
  if (number_.isEmpty()) {
    colors.ground = theme::mixed(unmarkedFill(palette()), ground, 0.6);
    colors.outline = theme::standingOutFrom(ground, colors.ground, theme::shapeContrast);
  }
  paintLineBall(painter, rect(), {number_, kind}, colors);
}

}  // namespace tallywick
