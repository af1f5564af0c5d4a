// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/ball_picture.h"

#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/theme.h"

#include <QPainter>

namespace tallywick {

using namespace Qt::StringLiterals;

BallPicture::BallPicture(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void BallPicture::showNumber(const QString& number, bool isExtraBall, const QPixmap& picture) {
  number_ = number;
  isExtraBall_ = isExtraBall;
  picture_ = picture;
  setAccessibleName(isExtraBall ? u"extra ball %1"_s.arg(number) : number);
  update();
}

QSize BallPicture::sizeHint() const {
  const int side = 6 * theme::gap;
  return {side, side};
}

void BallPicture::paintEvent(QPaintEvent*) {
  if (number_.isEmpty() && picture_.isNull()) return;
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  if (!picture_.isNull()) {
    const QSize size = picture_.size().scaled(rect().size(), Qt::KeepAspectRatio);
    painter.drawPixmap(QRect(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size),
                       picture_);
    return;
  }
  BallLook look;
  look.number = number_;
  if (isExtraBall_) {
    look.fill = theme::toQColor(colors::magenta, palette());
    look.mark = BallMark::extra;
  }
  paintBall(painter, rect(), look, palette());
}

}  // namespace tallywick
