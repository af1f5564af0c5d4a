// SPDX-License-Identifier: GPL-3.0-or-later
// A panel that says in a sentence what a press will do. It keeps its height while the sentence changes, and
// screen readers read each new sentence out.
#pragma once

#include <QFrame>

class QLabel;

namespace tallywick {

class HintPanel : public QFrame {
 public:
  enum class Kind { advice, ready, warning };

  /// `lines`: for how many lines of text there is room.
  HintPanel(int lines, QWidget* parent);
  void setLines(int lines);

  /// `heading` is in bold, over the text; empty for none.
  void show(Kind kind, const QString& heading, const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// The height is the one of so many lines, at every width.
  bool hasHeightForWidth() const override { return false; }

 protected:
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void color();
  void fitToFont();

  int lines_;
  Kind kind_ = Kind::advice;
  QLabel* sign_;
  QLabel* heading_;
  QLabel* text_;
};

}  // namespace tallywick
