// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes that the pages are laid out in, all in one rhythm.
#pragma once

#include "ui/qt/parts/theme.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <algorithm>
#include <initializer_list>

namespace tallywick {

inline QVBoxLayout* columnIn(QWidget* parent, int margin = 0) {
  auto* column = new QVBoxLayout(parent);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(theme::gap);
  return column;
}

inline QHBoxLayout* row(int spacing = theme::gap) {
  auto* boxes = new QHBoxLayout;
  boxes->setSpacing(spacing);
  return boxes;
}

inline QLabel* heading(QWidget* parent, const QString& text = {}) {
  auto* label = new QLabel(text, parent);
  label->setFont(theme::headingFont(label->font()));
  return label;
}

/// A label for what matters less than the rest, and is readable all the same.
class DimmedLabel : public QLabel {
 public:
  explicit DimmedLabel(QWidget* parent) : QLabel(parent) { dim(); }

 protected:
  void changeEvent(QEvent* event) override {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) dim();
  }

 private:
  void dim() {
    // The other colours stay the application's, so that this hears of a change of theirs.
    QPalette colors;
    const QColor ground = colors.color(QPalette::Window);
    const QColor ink = theme::mixed(colors.color(QPalette::WindowText), ground, 0.4);
    colors.setColor(QPalette::WindowText, theme::standingOutFrom(ground, ink, theme::textContrast));
    setPalette(colors);
  }
};

/// Keeps a widget in the list face, in the size of the application's text.
class ListFace : public QObject {
 public:
  explicit ListFace(QWidget* widget) : QObject(widget) {
    widget->setFont(theme::listFont(widget->font()));
    widget->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ApplicationFontChange)
      static_cast<QWidget*>(watched)->setFont(theme::listFont(QGuiApplication::font()));
    return QObject::eventFilter(watched, event);
  }
};

/// Sentences under each other, which wrap where they are long. The label's height does not follow from its
/// width: where it does on one page, each page gets the height that it would like to have, and scrolls.
class Sentences : public QLabel {
 public:
  explicit Sentences(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
  }
  /// The toolkit's answer changes with each text.
  bool hasHeightForWidth() const override { return false; }
  /// Room for every line in the width that it has.
  QSize sizeHint() const override { return {QLabel::sizeHint().width(), heightForWidth(width())}; }
  QSize minimumSizeHint() const override {
    return {QLabel::minimumSizeHint().width(), heightForWidth(width())};
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    if (event->oldSize().width() != width()) updateGeometry();
  }
};

inline QLabel* sentences(QWidget* parent) {
  return new Sentences(parent);
}

/// The width of a dialog with wrapped sentences: `least`, or 45 characters where the text is large.
inline int sentencesWidth(const QWidget& dialog, int least) {
  return std::max(least, 45 * dialog.fontMetrics().averageCharWidth());
}

/// `content`, which scrolls where there is too little room for it. A part of its window, not of what the Tab
/// key reaches.
inline QScrollArea* scrolled(QWidget* content) {
  auto* area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(content);
  return area;
}

/// Gives the window that size, as far as it and its frame fit into the screen.
inline void resizeOnScreen(QWidget& window, QSize size) {
  window.resize(size.boundedTo(window.screen()->availableGeometry().size().shrunkBy(theme::windowFrame)));
}

inline QSplitter* splitter(Qt::Orientation orientation, const QString& name) {
  auto* made = new QSplitter(orientation);
  made->setChildrenCollapsible(false);
  made->setHandleWidth(theme::gap);
  made->setProperty("layoutName", name);
  return made;
}

}  // namespace tallywick
