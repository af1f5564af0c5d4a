// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/play_table_model.h"

#include "plays/play_table.h"
#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/theme.h"
#include "ui/qt/parts/wording.h"

#include <QApplication>
#include <QPainter>
#include <limits>
#include <utility>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

QStringList texts(const std::vector<std::string>& numbers) {
  QStringList list;
  for (const std::string& number : numbers) list += toQString(number);
  return list;
}

QStringList numbersOf(const JudgedPlay& play, int column) {
  if (column == PlayTableModel::ExtraColumn) return {toQString(play.extra)};
  return texts({play.white.begin(), play.white.end()});
}

QStringList drawnOf(const JudgedPlay& play, int column) {
  if (column == PlayTableModel::NumbersColumn) return texts(play.match.whites);
  return play.match.extra ? QStringList{toQString(play.extra)} : QStringList();
}

int sizeOfMatch(const Match& match) {
  return static_cast<int>(match.whites.size()) * 2 + (match.extra ? 1 : 0);
}

}  // namespace

void PlayTableModel::show(const GameInfo& game, std::vector<JudgedPlay> plays) {
  beginResetModel();
  game_ = &game;
  plays_ = std::move(plays);
  endResetModel();
}

int PlayTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(plays_.size());
}

int PlayTableModel::columnCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return game_->game == Game::powerBall ? DoublePlayColumn + 1 : DoublePlayColumn;
}

QVariant PlayTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  const JudgedPlay& play = playAt(index.row());
  const int column = index.column();
  const bool hasBalls = column == NumbersColumn || column == ExtraColumn;
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
      return text(play, column);
    case SortRole:
      return sortKey(play, column);
    case NumbersRole:
      return hasBalls ? numbersOf(play, column) : QStringList();
    case DrawnRole:
      return hasBalls ? drawnOf(play, column) : QStringList();
    case KindRole:
      return static_cast<int>(column == ExtraColumn ? extraBallOf(game_->game) : LineBallKind::white);
    case BriefRole:
      return column == MatchedColumn ? toQString(matchCount(play.match, game_->game)) : QString();
    case Qt::FontRole:
      if (isWinner(play)) return theme::headingFont(QApplication::font());
      return {};
    case Qt::TextAlignmentRole:
      return column == PrizeColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    default:
      return {};
  }
}

QVariant PlayTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  switch (section) {
    case DateColumn:
      return u"Draw"_s;
    case NumbersColumn:
      return u"Numbers"_s;
    case ExtraColumn:
      return toQString(extraBallName(game_->game));
    case StateColumn:
      return u"State"_s;
    case MatchedColumn:
      return u"Matched"_s;
    case PrizeColumn:
      return u"Prize"_s;
    default:
      return u"With Double Play"_s;
  }
}

QString PlayTableModel::text(const JudgedPlay& play, int column) const {
  const bool isDrawn = play.state == DrawState::drawn;
  switch (column) {
    case DateColumn:
      return toQString(dateText(play));
    case NumbersColumn:
    case ExtraColumn:
      return numbersOf(play, column).join(u' ');
    case StateColumn:
      return toQString(stateText(play));
    case MatchedColumn:
      return isDrawn ? toQString(matchText(play.match, game_->game)) : QString();
    case PrizeColumn:
      return toQString(prizeText(play));
    default:
      return toQString(doublePlayText(play));
  }
}

QVariant PlayTableModel::sortKey(const JudgedPlay& play, int column) const {
  switch (column) {
    case DateColumn:
      return play.day ? play.day->number() : std::numeric_limits<int>::min();
    case MatchedColumn:
      return play.state == DrawState::drawn ? sizeOfMatch(play.match) : -1;
    case PrizeColumn:
      if (play.jackpot) return std::numeric_limits<qlonglong>::max();
      return play.prize ? qlonglong{*play.prize} : qlonglong{play.match.wins() ? 0 : -1};
    case DoublePlayColumn:
      return play.doublePlay ? sizeOfMatch(*play.doublePlay) : -1;
    default:
      return text(play, column);
  }
}

int PlaysDelegate::sideOf(const QFontMetrics& metrics) {
  return metrics.height() + theme::gap;
}

void PlaysDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  const QString brief = index.data(PlayTableModel::BriefRole).toString();
  if (!brief.isEmpty()) option->text = brief;
}

void PlaysDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const {
  const QStringList numbers = index.data(PlayTableModel::NumbersRole).toStringList();
  if (numbers.isEmpty()) return QStyledItemDelegate::paint(painter, option, index);
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  cell.text.clear();
  const QStyle& style = cell.widget != nullptr ? *cell.widget->style() : *QApplication::style();
  style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
  const QStringList drawn = index.data(PlayTableModel::DrawnRole).toStringList();
  const auto kind = static_cast<LineBallKind>(index.data(PlayTableModel::KindRole).toInt());
  const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
  const BallColors colors = lineBallColors(
      kind, cell.palette.color(isSelected ? QPalette::Highlight : QPalette::Base), cell.palette);
  const int side = std::min(sideOf(cell.fontMetrics), cell.rect.height());
  QRect place(cell.rect.left() + theme::halfGap, cell.rect.top() + (cell.rect.height() - side) / 2, side,
              side);
  for (const QString& number : numbers) {
    paintLineBall(*painter, place, {number, kind, drawn.contains(number)}, colors);
    place.translate(side + betweenLineBalls, 0);
  }
}

QSize PlaysDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const auto balls = static_cast<int>(index.data(PlayTableModel::NumbersRole).toStringList().size());
  if (balls == 0) return QStyledItemDelegate::sizeHint(option, index);
  const int side = sideOf(option.fontMetrics);
  return {(side + betweenLineBalls) * balls + 2 * theme::halfGap, side + theme::halfGap};
}

}  // namespace tallywick
