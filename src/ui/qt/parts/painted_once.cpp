// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/painted_once.h"

#include <QPainter>
#include <QPixmapCache>
#include <bit>
#include <cmath>

namespace tallywick {

void paintOnce(QPainter& painter, const QRectF& area, const Looks& looks,
               const std::function<void(QPainter& painter, const QRectF& area)>& paint) {
  const QTransform toDevice = painter.deviceTransform();
  // A scaled picture would not be as sharp.
  if (toDevice.type() > QTransform::TxTranslate) return paint(painter, area);
  const QPointF onDevice = area.topLeft() + QPointF(toDevice.dx(), toDevice.dy());
  const QPointF pixel(std::floor(onDevice.x()), std::floor(onDevice.y()));
  const QRectF inPicture(onDevice - pixel, area.size());
  struct {
    Looks looks;
    std::array<float, 4> place;
  } const asked = {looks,
                   {static_cast<float>(inPicture.x()), static_cast<float>(inPicture.y()),
                    static_cast<float>(area.width()), static_cast<float>(area.height())}};
  const auto letters = std::bit_cast<std::array<QChar, sizeof asked / sizeof(QChar)>>(asked);
  const QString key(letters.data(), letters.size());
  QPixmap picture;
  if (!QPixmapCache::find(key, &picture)) {
    picture = QPixmap(inPicture.toAlignedRect().size() + QSize(1, 1));
    picture.fill(Qt::transparent);
    QPainter into(&picture);
    paint(into, inPicture);
    into.end();
    QPixmapCache::insert(key, picture);
  }
  painter.drawPixmap(pixel - QPointF(toDevice.dx(), toDevice.dy()), picture);
}

}  // namespace tallywick
