// SPDX-License-Identifier: GPL-3.0-or-later
// My Plays: all plays of the game on show in one table with their judgement, their sums by year, and the
// changes that a player makes by hand.
#pragma once

#include "plays/judged_plays.h"
#include "plays/play_table.h"

#include <QWidget>

class QBoxLayout;
class QComboBox;
class QLabel;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;
class QTableWidget;

namespace tallywick {

class PlayActions;
class PlayTableModel;

class MyPlaysView : public QWidget {
 public:
  MyPlaysView(PlayActions& actions, QWidget* parent);

  /// Reads the plays anew where the page is visible.
  void refresh();
  /// Shows what the filter lets through, and takes the focus there.
  void showOnly(PlayFilter filter);

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void addFilter(QBoxLayout& column);
  void fitToFont();
  void addTable(QBoxLayout& column);
  void addButtons(QBoxLayout& column);
  /// The context menu of the table: what lists have, then what the buttons do.
  void addMenu();
  /// Whether there is anything new.
  bool read();
  void showPlays();
  void showSums();
  void showNotices(const std::vector<std::string>& notices);
  void enableActions();
  /// The selected plays, each once.
  std::vector<JudgedPlay> selected() const;
  void remove();
  void move();
  void bringBack();

  PlayActions& actions_;
  QComboBox* filter_ = nullptr;
  QLabel* notices_ = nullptr;
  QTableView* table_ = nullptr;
  PlayTableModel* model_ = nullptr;
  QSortFilterProxyModel* sorted_ = nullptr;
  QTableWidget* sums_ = nullptr;
  QLabel* done_ = nullptr;
  QPushButton* remove_ = nullptr;
  QPushButton* move_ = nullptr;
  QPushButton* bringBack_ = nullptr;
  QPushButton* undo_ = nullptr;

  /// What is shown.
  std::shared_ptr<const JudgedPlays> shown_ = std::make_shared<JudgedPlays>();
  const GameInfo* game_ = nullptr;
  std::string failure_;
};

}  // namespace tallywick
