// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/flow.h"

#include "ui/qt/parts/theme.h"

#include <QShowEvent>
#include <QSpacerItem>
#include <QWidget>
#include <algorithm>
#include <utility>

namespace tallywick {

namespace {

int widthOf(const QLayoutItem& item, int room) {
  return std::max(std::min(item.sizeHint().width(), room), item.minimumSize().width());
}

}  // namespace

Flow::Flow(QWidget* parent) : QLayout(parent) {
  setContentsMargins(0, 0, 0, 0);
  setSpacing(theme::gap);
}

Flow::~Flow() {
  // A layout within takes itself out as it goes.
  while (count() > 0) delete takeAt(count() - 1);
}

void Flow::addWidget(QWidget* widget, bool stretches) {
  QLayout::addWidget(widget);
  items_.back().stretches = stretches;
}

void Flow::addLayout(QLayout* layout) {
  addChildLayout(layout);
  addItem(layout);
}

void Flow::addSpacing(int width) {
  addItem(new QSpacerItem(width, 0, QSizePolicy::Fixed, QSizePolicy::Fixed));
}

void Flow::addStretch() {
  addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Fixed));
  items_.back().stretches = true;
}

void Flow::addItem(QLayoutItem* item) {
  items_.push_back({item, false});
  invalidate();
}

QLayoutItem* Flow::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].item : nullptr;
}

QLayoutItem* Flow::takeAt(int index) {
  QLayoutItem* taken = itemAt(index);
  if (taken != nullptr) items_.erase(items_.begin() + index);
  return taken;
}

std::vector<Flow::Line> Flow::linesIn(int width) const {
  std::vector<Line> lines(1);
  for (const Item& each : items_) {
    const bool isSpace = each.item->spacerItem() != nullptr;
    if (each.item->isEmpty() && !isSpace) continue;
    const int own = widthOf(*each.item, width);
    const int before = lines.back().items.empty() ? 0 : spacing();
    if (before > 0 && lines.back().width + before + own > width) lines.emplace_back();
    Line& line = lines.back();
    if (line.items.empty() && isSpace && lines.size() > 1 && !each.stretches) continue;
    line.width += own + (line.items.empty() ? 0 : spacing());
    line.height = std::max(line.height, each.item->sizeHint().height());
    line.items.push_back(each);
  }
  return lines;
}

int Flow::heightIn(int width) const {
  int height = -spacing();
  for (const Line& line : linesIn(width)) {
    if (line.height > 0) height += line.height + spacing();
  }
  return std::max(height, 0);
}

QSize Flow::sizeHint() const {
  const int whole = linesIn(QLAYOUTSIZE_MAX).front().width;
  return QSize(whole, heightIn(width_ > 0 ? width_ : whole)).grownBy(contentsMargins());
}

QSize Flow::minimumSize() const {
  int widest = 0;
  for (const Item& each : items_) {
    if (!each.item->isEmpty()) widest = std::max(widest, each.item->minimumSize().width());
  }
  const QMargins margins = contentsMargins();
  return {widest + margins.left() + margins.right(), sizeHint().height()};
}

void Flow::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  QRect area = rect.marginsRemoved(contentsMargins());
  const bool isOther = std::exchange(width_, area.width()) != area.width();
  for (const Line& line : linesIn(area.width())) {
    if (line.height == 0) continue;
    area.setHeight(line.height);
    place(line, area);
    area.translate(0, line.height + spacing());
  }
  // The height may be another one.
  if (isOther) update();
}

void Flow::place(const Line& line, const QRect& area) const {
  const auto sharing = std::ranges::count_if(line.items, &Item::stretches);
  int rest = std::max(0, area.width() - line.width);
  int left = area.left();
  auto sharers = static_cast<int>(sharing);
  for (const Item& each : line.items) {
    int width = widthOf(*each.item, area.width());
    if (each.stretches) {
      const int share = rest / sharers--;
      width += share;
      rest -= share;
    }
    const int height = std::min(each.item->maximumSize().height(), area.height());
    const QRect own(left, area.top() + (area.height() - height) / 2, width, height);
    const bool isMirrored = parentWidget() != nullptr && parentWidget()->isRightToLeft();
    each.item->setGeometry(
        isMirrored ? own.translated(area.left() + area.right() - own.left() - own.right(), 0) : own);
    left += width + spacing();
  }
}

Sides::Sides(const QString& name, Room room) : QSplitter(Qt::Horizontal), room_(room) {
  setChildrenCollapsible(false);
  setHandleWidth(theme::gap);
  setProperty("layoutName", name);
}

int Sides::neededWidth() const {
  int needed = (count() - 1) * handleWidth();
  for (int i = 0; i < count(); ++i) {
    const QWidget& part = *widget(i);
    needed += (room_ == Room::least ? part.minimumSizeHint() : part.sizeHint()).width();
  }
  return needed;
}

QSize Sides::minimumSizeHint() const {
  int widest = 0;
  for (int i = 0; i < count(); ++i) widest = std::max(widest, widget(i)->minimumSizeHint().width());
  return {widest, QSplitter::minimumSizeHint().height()};
}

void Sides::arrange() {
  // A page that was not shown yet has no width of its own, and the others would be as high as it.
  if (!isVisible()) return;
  const Qt::Orientation fitting = width() < neededWidth() ? Qt::Vertical : Qt::Horizontal;
  if (orientation() != fitting) setOrientation(fitting);
}

void Sides::showEvent(QShowEvent* event) {
  arrange();
  QSplitter::showEvent(event);
}

void Sides::resizeEvent(QResizeEvent* event) {
  arrange();
  QSplitter::resizeEvent(event);
}

}  // namespace tallywick
