// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers drawn as balls. A mark is the ball's colour and a second sign, so that nobody needs to tell the
// colours apart: a ring for a main number, a filled band for the extra ball. The frequent numbers' colours
// come with dots.
#pragma once

#include "controls/color.h"
#include "core/games.h"

#include <QAbstractButton>
#include <QColor>
#include <QPalette>
#include <QRectF>
#include <QString>
#include <functional>

class QPainter;
class QPainterPath;

namespace tallywick {

enum class BallMark { none, main, extra };

/// The mark that a number button's colour means: cyan a main number, magenta the extra ball.
BallMark ballMarkOf(Color color);
/// How many draws before the newest a frequent number's colour means: 1 (red) to 5 (light cyan), else 0.
int repeatOf(Color color);

struct BallLook {
  QString number;
  /// Not valid: an unmarked ball.
  QColor fill;
  /// With rounded corners.
  bool isSquare = false;
  BallMark mark = BallMark::none;
  /// The dots under the number, see repeatOf().
  int dots = 0;
  bool enabled = true;
  bool focused = false;
  bool hovered = false;
  bool pressed = false;
};

/// The colours that a ball is painted in. The number is written on `ground`.
struct BallColors {
  QColor ground;
  QColor caps;
  QColor text;
  QColor outline;
};
/// The shape of a ball that fills `area`.
QPainterPath ballShape(const QRectF& area, bool isSquare);
/// Of a ball without a colour of its own.
QColor unmarkedFill(const QPalette& palette);
BallColors ballColors(const BallLook& look, const QPalette& palette);

/// Paints the largest ball that fits into `area`, with room for the focus ring, in the painter's font made to
/// fit.
void paintBall(QPainter& painter, const QRectF& area, const BallLook& look, const QPalette& palette);

/// A number button. In a QButtonGroup that is not exclusive the arrow keys go from ball to ball by place.
class BallButton : public QAbstractButton {
  Q_OBJECT

 public:
  explicit BallButton(QWidget* parent = nullptr);

  void setCaption(const QString& number);
  /// Takes over the colour with the mark or the dots that it means; a system colour is an unmarked ball.
  void setColor(Color color);
  /// The number is the extra ball of that game.
  void setExtraBallOf(std::function<Game()> game);
  BallMark mark() const { return mark_; }

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void updateAccessibleName();
  void refresh();

  Color color_ = colors::buttonFace;
  BallMark mark_ = BallMark::none;
  std::function<Game()> gameOfExtra_;
};

}  // namespace tallywick
