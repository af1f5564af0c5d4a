// SPDX-License-Identifier: GPL-3.0-or-later
// Paints a line of a LineList: emphasised fields in bold, lines that stand out on a tinted ground with a bar.
#pragma once

#include <QStyledItemDelegate>

namespace tallywick {

class LineList;

class LineDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  explicit LineDelegate(LineList& list);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// The same for every line: that of the longest.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  void paintText(QPainter& painter, const QStyleOptionViewItem& option, bool standsOut) const;

  const LineList& list_;
};

}  // namespace tallywick
