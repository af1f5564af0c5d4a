// SPDX-License-Identifier: GPL-3.0-or-later
// The strip over the pages that shows the game on show at a glance. Each part leads to its page.
#pragma once

#include "plays/glance.h"
#include "ui/qt/parts/line_ball.h"

#include <QAbstractButton>
#include <QFrame>
#include <functional>
#include <vector>

namespace tallywick {

class FormWindow;
class MainForm;

/// A caption over a text, with balls beside them where it has some.
class GlancePart : public QAbstractButton {
 public:
  enum class Look { plain, link };
  GlancePart(Look look, QWidget* parent);

  /// `where` says what a press leads to.
  void showPart(const QString& caption, const Glance::Part& part, const QString& where,
                std::vector<LineBall> balls = {});

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QFont captionFont() const;
  int textWidth() const;
  int textHeight() const;
  int ballSide() const;

  Look look_;
  QString caption_;
  QString text_;
  std::vector<LineBall> balls_;
};

class GlanceStrip : public QFrame {
 public:
  GlanceStrip(MainForm& form, FormWindow& window);
  /// Reads the files anew.
  void showGame();

  /// What the presses lead to.
  std::function<void()> onNewest;
  std::function<void()> onMissing;
  std::function<void()> onWaiting;
  std::function<void()> onWins;

 private:
  MainForm& form_;
  FormWindow& window_;
  GlancePart* newest_;
  GlancePart* missing_;
  GlancePart* next_;
  GlancePart* waiting_;
  GlancePart* wins_;
};

}  // namespace tallywick
