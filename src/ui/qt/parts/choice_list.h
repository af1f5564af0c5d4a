// SPDX-License-Identifier: GPL-3.0-or-later
// A drop-down that is always open: its text above its items, for windows with room for all of them.
#pragma once

#include "controls/text_lines.h"

#include <QWidget>
#include <functional>

class QLineEdit;

namespace tallywick {

class LineList;

class ChoiceList : public QWidget {
 public:
  explicit ChoiceList(const TextLines& lines, QWidget* parent = nullptr);

  LineList& list() { return *list_; }
  void showText(const QString& text);
  /// An item was chosen with the mouse or by keyboard.
  std::function<void(const QString& item)> onChosen;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLineEdit* text_;
  LineList* list_;
};

}  // namespace tallywick
