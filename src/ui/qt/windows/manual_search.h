// SPDX-License-Identifier: GPL-3.0-or-later
// The field over the manual that finds words in all its pages, and the list of the pages found.
#pragma once

#include "ui/qt/windows/manual_index.h"

#include <QWidget>
#include <functional>

class QLabel;
class QLineEdit;
class QListWidget;

namespace tallywick {

class ManualSearch : public QWidget {
 public:
  explicit ManualSearch(const QString& folder, QWidget* parent);

  /// Puts the keyboard into the field.
  void begin();
  /// Empties the field; false where it was empty.
  bool end();
  QRegularExpression wordsToLight() const;

  /// The words are others.
  std::function<void()> onSearched;
  std::function<void(const QString& page, int position)> onChosen;

 protected:
  /// The arrow keys choose in the list while one types.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void search();
  void goToCurrent();
  void say(const QString& text);

  ManualIndex index_;
  std::vector<FoundPlace> places_;
  QLineEdit* field_;
  QLabel* count_;
  QListWidget* list_;
};

}  // namespace tallywick
