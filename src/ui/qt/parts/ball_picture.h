// SPDX-License-Identifier: GPL-3.0-or-later
// One number of a draw as a picture: the record book's own where it has one, else the ball drawn.
#pragma once

#include "core/games.h"

#include <QPixmap>
#include <QWidget>

namespace tallywick {

class BallPicture : public QWidget {
 public:
  explicit BallPicture(Game game, QWidget* parent = nullptr);

  /// An empty `number` shows the outline of a ball; a null `picture` draws the ball.
  void showNumber(const QString& number, bool isExtraBall, const QPixmap& picture);
  const QPixmap& picture() const { return picture_; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Game game_;
  QString number_;
  bool isExtraBall_ = false;
  QPixmap picture_;
};

}  // namespace tallywick
