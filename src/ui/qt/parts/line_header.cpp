// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_header.h"

#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/theme.h"
#include "ui/qt/parts/wording.h"

#include <QGuiApplication>
#include <QStandardItemModel>
#include <algorithm>

namespace tallywick {

namespace {

/// The widest content of a field in a face.
double contentWidth(LineField field, const QFontMetricsF& face) {
  const double letter = face.horizontalAdvance(QLatin1Char('0'));
  switch (field) {
    case LineField::date:
      return 14 * letter;
    case LineField::whites:
      return 5.0 * (lineBallSide(face) + betweenLineBalls);
    case LineField::extra:
    case LineField::ball:
      return lineBallSide(face);
    case LineField::matched:
      return 13 * letter;
    case LineField::prize:
      return 10 * letter;
    case LineField::amount:
    case LineField::figure:
      break;
  }
  return 6 * letter;
}

}  // namespace

Qt::Alignment alignmentOf(LineField field) {
  const bool isFigure = field == LineField::amount || field == LineField::figure;
  return (isFigure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

LineHeader::LineHeader(QWidget* list)
    : QHeaderView(Qt::Horizontal, list), titles_(new QStandardItemModel(this)) {
  setModel(titles_);
  setFocusPolicy(Qt::NoFocus);
  setHighlightSections(false);
  setStretchLastSection(true);
}

void LineHeader::setColumns(const LineColumns& columns) {
  columns_ = columns;
  titles_->setColumnCount(static_cast<int>(columns.size()));
  for (std::size_t i = 0; i < columns.size(); ++i) {
    // About as wide as the gap.
    const QString indent(gapBefore(static_cast<int>(i)) > 0 ? 2 : 0, u' ');
    auto* title = new QStandardItem(indent + toQString(columns[i].title));
    title->setTextAlignment(alignmentOf(columns[i].field));
    titles_->setHorizontalHeaderItem(static_cast<int>(i), title);
  }
}

void LineHeader::fitTo(const QFont& face) {
  setFont(QGuiApplication::font());
  const QFontMetricsF lines(face);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const double content = contentWidth(columns_[i].field, lines) + 2 * theme::gap;
    const int title = sectionSizeFromContents(static_cast<int>(i)).width();
    const int width = std::max(title, static_cast<int>(content) + 1 + gapBefore(static_cast<int>(i)));
    if (i + 1 == columns_.size()) lastWidth_ = width;
    resizeSection(static_cast<int>(i), width);
  }
}

int LineHeader::gapBefore(int column) const {
  if (column == 0) return 0;
  const auto isRight = [this](int each) {
    return alignmentOf(columns_[static_cast<std::size_t>(each)].field).testFlag(Qt::AlignRight);
  };
  return isRight(column - 1) && !isRight(column) ? theme::gap : 0;
}

QRect LineHeader::cell(int column, const QRect& line) const {
  QRect part = line;
  part.setLeft(line.left() + sectionPosition(column) + theme::halfGap + gapBefore(column));
  part.setRight(line.left() + sectionPosition(column) + sectionSize(column) - 1 - theme::halfGap);
  return part;
}

int LineHeader::neededWidth() const {
  return count() == 0 ? 0 : sectionPosition(count() - 1) + lastWidth_;
}

}  // namespace tallywick
