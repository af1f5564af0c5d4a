// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/hint_panel.h"

#include "ui/qt/parts/layouts.h"

#include <QAccessible>
#include <QResizeEvent>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QColor colorOf(HintPanel::Kind kind, const QPalette& palette) {
  switch (kind) {
    case HintPanel::Kind::ready:
      return {46, 125, 70};
    case HintPanel::Kind::warning:
      return {200, 120, 0};
    case HintPanel::Kind::advice:
      break;
  }
  return theme::mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.25);
}

/// The second sign beside the colour.
QString signOf(HintPanel::Kind kind) {
  if (kind == HintPanel::Kind::advice) return {};
  return kind == HintPanel::Kind::ready ? u"✓"_s : u"!"_s;
}

QLabel* textLabel(QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace

HintPanel::HintPanel(int lines, QWidget* parent)
    : QFrame(parent),
      lines_(lines),
      sign_(new QLabel(this)),
      heading_(textLabel(this)),
      text_(textLabel(this)) {
  setFrameShape(StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  sign_->setAutoFillBackground(true);
  sign_->setAlignment(Qt::AlignCenter);
  fitToFont();
  auto* texts = new QVBoxLayout;
  texts->setContentsMargins(theme::gap, theme::halfGap, theme::gap, theme::halfGap);
  texts->setSpacing(theme::halfGap / 2);
  texts->addWidget(heading_);
  texts->addWidget(text_);
  texts->addStretch();
  auto* line = new QHBoxLayout(this);
  line->setContentsMargins(0, 0, 0, 0);
  line->setSpacing(0);
  line->addWidget(sign_);
  line->addLayout(texts, 1);
  color();
}

void HintPanel::setLines(int lines) {
  lines_ = lines;
  updateGeometry();
}

void HintPanel::show(Kind kind, const QString& heading, const QString& text) {
  if (kind == kind_ && heading == heading_->text() && text == text_->text()) return;
  kind_ = kind;
  sign_->setText(signOf(kind));
  heading_->setText(heading);
  heading_->setVisible(!heading.isEmpty());
  text_->setText(text);
  updateGeometry();
  setAccessibleName(heading.isEmpty() ? text : heading + u". "_s + text);
  color();
  QAccessibleEvent changed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

QSize HintPanel::sizeHint() const {
  const int usual = lines_ * (fontMetrics().lineSpacing() + 1) + 2 * theme::gap;
  const int letters = 20 * fontMetrics().averageCharWidth();
  // On a page that was not shown yet it has no width of its own.
  if (!testAttribute(Qt::WA_Resized)) return {letters, usual};
  const int room = width() - sign_->width() - 2 * theme::gap - 2 * frameWidth();
  int needed = theme::gap + 2 * frameWidth() + theme::halfGap / 2;
  for (const QLabel* label : {heading_, text_}) {
    if (!label->isHidden()) needed += label->heightForWidth(room);
  }
  return {letters, std::max(usual, needed)};
}

QSize HintPanel::minimumSizeHint() const {
  return sizeHint();
}

void HintPanel::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  if (event->oldSize().width() != width()) updateGeometry();
}

void HintPanel::fitToFont() {
  const QFont face = theme::headingFont(font());
  for (QLabel* label : {sign_, heading_}) label->setFont(face);
  sign_->setFixedWidth(std::max(2 * theme::gap, QFontMetrics(face).horizontalAdvance(u'✓') + theme::halfGap));
}

void HintPanel::color() {
  const QColor ground = colorOf(kind_, palette());
  QPalette colors = palette();
  colors.setColor(sign_->backgroundRole(), ground);
  colors.setColor(sign_->foregroundRole(), theme::readableOn(ground));
  sign_->setPalette(colors);
}

void HintPanel::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) color();
  if (event->type() == QEvent::FontChange) {
    fitToFont();
    updateGeometry();
  }
}

}  // namespace tallywick
