// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_delegate.h"

#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/parts/theme.h"

#include <QPainter>
#include <QTextLayout>

namespace tallywick {

namespace {

constexpr int barWidth = 3;
constexpr double tint = 0.22;

QTextLayout::FormatRange boldRange(int begin, int length) {
  QTextLayout::FormatRange range;
  range.start = begin;
  range.length = length;
  range.format.setFontWeight(QFont::Bold);
  return range;
}

/// The emphasis as ranges of the text on screen, which may have fewer characters than the line has bytes.
QList<QTextLayout::FormatRange> emphasisOf(const QString& text, const std::vector<std::string>& emphasis) {
  QList<QTextLayout::FormatRange> ranges;
  const std::string line = text.toLatin1().toStdString();
  for (const TextRun& run : emphasisedRuns(line, emphasis))
    ranges.append(boldRange(static_cast<int>(run.begin), static_cast<int>(run.length)));
  return ranges;
}

QColor textColor(const QStyleOptionViewItem& option) {
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  QPalette::ColorGroup group = QPalette::Disabled;
  if (option.state.testFlag(QStyle::State_Enabled))
    group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  return option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

void paintStandOut(QPainter& painter, const QStyleOptionViewItem& option) {
  const QColor accent = option.palette.color(QPalette::Highlight);
  const QColor ground = option.palette.color(QPalette::Base);
  if (!option.state.testFlag(QStyle::State_Selected))
    painter.fillRect(option.rect, theme::mixed(ground, accent, tint));
  const QRect bar(option.rect.left(), option.rect.top(), barWidth, option.rect.height());
  painter.fillRect(bar, theme::standingOutFrom(ground, accent, theme::shapeContrast));
}

}  // namespace

LineDelegate::LineDelegate(LineList& list) : QStyledItemDelegate(&list), list_(list) {}

void LineDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem line = option;
  initStyleOption(&line, index);
  const QStyle& style = *list_.style();
  const bool standsOut = index.data(LineListModel::StandsOutRole).toBool();
  painter->save();
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &line, painter, &list_);
  if (standsOut) paintStandOut(*painter, line);
  paintText(*painter, line, standsOut);
  if (line.state.testFlag(QStyle::State_HasFocus)) {
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(line);
    focus.backgroundColor = line.palette.color(QPalette::Base);
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, &list_);
  }
  painter->restore();
}

void LineDelegate::paintText(QPainter& painter, const QStyleOptionViewItem& option, bool standsOut) const {
  QTextLayout layout(option.text, option.font);
  if (standsOut)
    layout.setFormats({boldRange(0, static_cast<int>(option.text.size()))});
  else
    layout.setFormats(emphasisOf(option.text, list_.emphasis()));
  layout.beginLayout();
  const QTextLine textLine = layout.createLine();
  layout.endLayout();
  if (!textLine.isValid()) return;
  const double top = option.rect.top() + (option.rect.height() - textLine.height()) / 2;
  painter.setPen(textColor(option));
  layout.draw(&painter, QPointF(option.rect.left() + theme::halfGap, top));
}

QSize LineDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  const LineListModel* model = list_.lineModel();
  const double columns = model ? static_cast<double>(model->longestLine()) : 0.0;
  const QFontMetricsF metrics(option.font);
  const double width = columns * metrics.horizontalAdvance(QLatin1Char('0')) + 2 * theme::halfGap;
  return {static_cast<int>(width) + 1, static_cast<int>(metrics.height()) + theme::halfGap};
}

}  // namespace tallywick
