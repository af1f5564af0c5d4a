// SPDX-License-Identifier: GPL-3.0-or-later
// The header of a list whose lines are shown in columns. It knows where the columns are, shown or not.
#pragma once

#include "ui/qt/parts/listed_line.h"

#include <QHeaderView>

class QStandardItemModel;

namespace tallywick {

class LineHeader : public QHeaderView {
 public:
  explicit LineHeader(QWidget* list);

  const LineColumns& columns() const { return columns_; }
  void setColumns(const LineColumns& columns);
  /// Makes the columns wide enough for lines in that face.
  void fitTo(const QFont& face);

  /// The column's part of a line.
  QRect cell(int column, const QRect& line) const;
  /// The width that no column falls short of.
  int neededWidth() const;

 private:
  /// Before a column that begins where the one before it ends.
  int gapBefore(int column) const;

  LineColumns columns_;
  QStandardItemModel* titles_;
  int lastWidth_ = 0;
};

/// Numbers of a table are aligned to the right, and so are amounts.
Qt::Alignment alignmentOf(LineField field);

}  // namespace tallywick
