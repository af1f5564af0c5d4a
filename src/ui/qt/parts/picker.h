// SPDX-License-Identifier: GPL-3.0-or-later
// A drop-down of draw or play lines: thousands of them open without delay, and typing finds a date.
#pragma once

#include "controls/text_lines.h"
#include "core/games.h"
#include "ui/qt/parts/listed_line.h"

#include <QComboBox>
#include <functional>

namespace tallywick {

class LineList;
class LineListModel;

class Picker : public QComboBox {
 public:
  /// `lines` outlive the picker, or forgetLines() is called first.
  explicit Picker(const TextLines& lines, QWidget* parent = nullptr);

  /// Shows the lines anew.
  void reload();
  void showText(const QString& text);
  /// A drop-down that shows results: its text is not typed.
  void setResultsOnly();
  void forgetLines();

  /// Shows the lines that fit the columns in them, see LineList.
  void showColumns(const LineColumns& columns, Game game);
  /// Runs before new lines are shown.
  std::function<void()> beforeReload;

 private:
  LineListModel* lines_;
  LineList* list_;
};

}  // namespace tallywick
