// SPDX-License-Identifier: GPL-3.0-or-later
// Paints a line of a LineList: in its columns with its numbers as balls, or as text with emphasised fields in
// bold; lines that stand out on a tinted ground with a bar.
#pragma once

#include <QStyledItemDelegate>
#include <string>
#include <vector>

namespace tallywick {

class LineList;
struct LineBall;
struct LineHighlights;

class LineDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit LineDelegate(LineList& list);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// The same for every line: that of the longest.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void paintText(QPainter& painter, const QStyleOptionViewItem& option, bool standsOut) const;
  /// On a ground of that colour.
  void paintCells(QPainter& painter, const QStyleOptionViewItem& option, const QColor& ground,
                  const std::vector<std::string>& cells, const LineHighlights& highlights) const;
  void paintBalls(QPainter& painter, const QRect& cell, const QStyleOptionViewItem& option,
                  std::vector<LineBall> balls, const QColor& ground) const;

  const LineList& list_;
};

}  // namespace tallywick
