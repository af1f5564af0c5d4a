// SPDX-License-Identifier: GPL-3.0-or-later
// A drop-down of draw or play lines: thousands of them open without delay, and typing finds a date.
#pragma once

#include "controls/text_lines.h"

#include <QComboBox>

namespace tallywick {

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

 private:
  LineListModel* lines_;
};

}  // namespace tallywick
