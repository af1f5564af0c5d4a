#include "ui/qt/program_icon.h"

#include <QLineF>
#include <QPainter>
#include <QPixmap>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor ballColor(0, 122, 135);

/// A ball with a tally of five on its white face, in a square of 64 units.
void drawTally(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(ballColor);
  painter.drawEllipse(QRectF(2, 2, 60, 60));
  painter.setBrush(Qt::white);
  painter.drawEllipse(QRectF(11, 11, 42, 42));
  painter.setPen(QPen(QColor(30, 30, 30), 4, Qt::SolidLine, Qt::RoundCap));
  for (const double x : {22.0, 29.0, 36.0, 43.0}) painter.drawLine(QLineF(x, 22, x - 1, 42));
  painter.drawLine(QLineF(17, 39, 47, 25));
}

}  // namespace

QIcon programIcon() {
  constexpr int side = 64;
  QIcon drawn;
  for (const int size : {16, 32, 48, 64, 128, 256}) {
    QPixmap picture(size, size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / double(side), size / double(side));
    drawTally(painter);
    painter.end();
    drawn.addPixmap(picture);
  }
  return QIcon::fromTheme(u"org.tallywick.Tallywick"_s, drawn);
}

}  // namespace tallywick
