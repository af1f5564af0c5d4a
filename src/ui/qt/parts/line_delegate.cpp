// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_delegate.h"

#include "core/words.h"
#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/parts/theme.h"
#include "ui/qt/parts/wording.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <span>

namespace tallywick {

namespace {

constexpr int barWidth = 3;
constexpr double tint = 0.22;
constexpr double winningTint = 0.14;

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

/// Lines that stand out have a tint and a bar of `accent`. Returns the ground.
QColor paintGround(QPainter& painter, const QStyleOptionViewItem& option, const QColor& accent,
                   double share) {
  const QColor base = option.palette.color(QPalette::Base);
  const QColor ground = theme::mixed(base, accent, share);
  if (!option.state.testFlag(QStyle::State_Selected)) painter.fillRect(option.rect, ground);
  const QRect bar(option.rect.left(), option.rect.top(), barWidth, option.rect.height());
  painter.fillRect(bar, theme::standingOutFrom(base, accent, theme::shapeContrast));
  return ground;
}

bool hasBalls(LineField field) {
  return field == LineField::whites || field == LineField::extra || field == LineField::ball;
}

/// The balls of a cell; an extra ball's kind is the same for every game.
std::vector<LineBall> ballsOf(LineField field, std::span<const std::string> cells,
                              const LineHighlights& highlights, const LineList& list) {
  const bool isExtra = field == LineField::extra;
  std::vector<LineBall> balls;
  for (const std::string& number : cells) {
    const bool isMatched =
        isExtra ? highlights.extra : std::ranges::find(highlights.whites, number) != highlights.whites.end();
    balls.push_back({toQString(number), isExtra ? LineBallKind::roundRed : LineBallKind::white,
                     isMatched || list.emphasises(number)});
  }
  return balls;
}

QString cellText(LineField field, std::span<const std::string> cells) {
  if (field == LineField::date) return toQString(weekdayDate(cells.front()));
  const QString mark =
      field == LineField::amount && !cells.front().empty() ? QStringLiteral("★ ") : QString();
  return mark + toQString(cells.back());
}

}  // namespace

LineDelegate::LineDelegate(LineList& list) : QStyledItemDelegate(&list), list_(list) {}

void LineDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem line = option;
  initStyleOption(&line, index);
  const QStyle& style = *list_.style();
  const bool standsOut = index.data(LineListModel::StandsOutRole).toBool();
  const std::string text = line.text.toStdString();
  const LineListModel* const model = list_.lineModel();
  const LineHighlights highlights = model != nullptr ? model->highlightsOf(text) : LineHighlights();
  painter->save();
  style.drawPrimitive(QStyle::PE_PanelItemViewItem, &line, painter, &list_);
  QColor ground = line.palette.color(QPalette::Base);
  if (standsOut)
    ground = paintGround(*painter, line, line.palette.color(QPalette::Highlight), tint);
  else if (highlights.wins)
    ground = paintGround(*painter, line, theme::winning, winningTint);
  if (line.state.testFlag(QStyle::State_Selected)) ground = line.palette.color(QPalette::Highlight);
  const auto cells = cellsOf(list_.columns(), text, highlights.matched, highlights.prize);
  if (cells)
    paintCells(*painter, line, ground, *cells, highlights);
  else
    paintText(*painter, line, standsOut);
  if (line.state.testFlag(QStyle::State_HasFocus)) {
    QStyleOptionFocusRect focus;
    focus.QStyleOption::operator=(line);
    focus.backgroundColor = line.palette.color(QPalette::Base);
    style.drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, &list_);
  }
  painter->restore();
}

void LineDelegate::paintCells(QPainter& painter, const QStyleOptionViewItem& option, const QColor& ground,
                              const std::vector<std::string>& cells, const LineHighlights& highlights) const {
  const LineColumns& columns = list_.columns();
  painter.setFont(option.font);
  painter.setPen(theme::standingOutFrom(ground, textColor(option), theme::textContrast));
  std::span<const std::string> left(cells);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const LineField field = columns[i].field;
    const QRect area = list_.header()->cell(static_cast<int>(i), option.rect);
    const auto own = left.first(cellsIn(field));
    left = left.subspan(own.size());
    if (hasBalls(field))
      paintBalls(painter, area, option, ballsOf(field, own, highlights, list_), ground);
    else
      painter.drawText(area, static_cast<int>(alignmentOf(field)), cellText(field, own));
  }
}

void LineDelegate::paintBalls(QPainter& painter, const QRect& cell, const QStyleOptionViewItem& option,
                              std::vector<LineBall> balls, const QColor& ground) const {
  const int side = std::min(lineBallSide(QFontMetricsF(option.font)), cell.height());
  QRectF area(cell.left(), cell.center().y() + 1 - side / 2.0, side, side);
  // A cell has one kind of ball.
  const bool areExtra =
      list_.hasExtraBalls() || (!balls.empty() && balls.front().kind != LineBallKind::white);
  const LineBallKind kind = areExtra ? extraBallOf(list_.game()) : LineBallKind::white;
  const BallColors colors = lineBallColors(kind, ground, option.palette);
  for (LineBall& ball : balls) {
    ball.kind = kind;
    paintLineBall(painter, area, ball, colors);
    area.translate(side + betweenLineBalls, 0);
  }
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

QSize LineDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
  return list_.lineSize();
}

}  // namespace tallywick
