// SPDX-License-Identifier: GPL-3.0-or-later
// The number table of the game on show: the white balls, and under them the extra ball. A click on a header
// or an entry of the context menu sorts.
#pragma once

#include "controls/text_lines.h"
#include "display/number_table.h"

#include <QWidget>

class QLabel;

namespace tallywick {

class Binding;
class DataFolder;
class HandlerRunner;
class LineList;
class MainForm;

/// The counts of one kind of ball.
class NumberList : public QWidget {
 public:
  NumberList(bool areExtra, HandlerRunner& runner, QWidget* parent = nullptr);

  void show(const std::vector<NumberCount>& counts, Game game, const QString& name);

 private:
  void addSorting(HandlerRunner& runner);
  void sortBy(NumberColumn column);
  void showSorted();

  bool areExtra_;
  std::vector<NumberCount> counts_;
  NumberColumn column_ = NumberColumn::number;
  bool descending_ = false;
  TextLines lines_;
  QLabel* title_;
  LineList* list_;
};

class NumberTableView : public QWidget {
 public:
  NumberTableView(const MainForm& form, Binding& binding);

  /// Counts anew where the draws are others; to be called after every change of the model.
  void showChanges();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void count(const GameInfo& game, DrawHistory history);

  const MainForm& form_;
  const DataFolder& folder_;
  /// What was counted: the history, and the number of changes of the lists that a summary fills from it.
  std::optional<std::pair<const void*, std::size_t>> counted_;
  QLabel* summary_;
  NumberList* white_;
  NumberList* extra_;
};

}  // namespace tallywick
