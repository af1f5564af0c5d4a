// SPDX-License-Identifier: GPL-3.0-or-later
// The plays of a game with what the judging says of each, as a table, and how its numbers are painted.
#pragma once

#include "core/games.h"
#include "display/judging.h"

#include <QAbstractTableModel>
#include <QStyledItemDelegate>
#include <vector>

namespace tallywick {

class PlayTableModel : public QAbstractTableModel {
 public:
  enum Column {
    DateColumn,
    NumbersColumn,
    ExtraColumn,
    StateColumn,
    MatchedColumn,
    PrizeColumn,
    DoublePlayColumn
  };
  enum Role {
    SortRole = Qt::UserRole,  ///< what a column is sorted by
    NumbersRole,              ///< the numbers of a cell of balls
    DrawnRole,                ///< those of them that were drawn
    KindRole,                 ///< the LineBallKind of the cell
    BriefRole                 ///< what the cell shows where that is less than its text
  };

  using QAbstractTableModel::QAbstractTableModel;

  void show(const GameInfo& game, std::vector<JudgedPlay> plays);
  const JudgedPlay& playAt(int row) const { return plays_.at(static_cast<std::size_t>(row)); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString text(const JudgedPlay& play, int column) const;
  QVariant sortKey(const JudgedPlay& play, int column) const;

  const GameInfo* game_ = &powerBall;
  std::vector<JudgedPlay> plays_;
};

/// Paints the numbers of a cell as balls; those that were drawn have a ring. Other cells are shown as briefly
/// as they can be.
class PlaysDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  /// The side of a ball's square beside text of that size.
  static int sideOf(const QFontMetrics& metrics);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace tallywick
