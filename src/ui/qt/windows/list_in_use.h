// SPDX-License-Identifier: GPL-3.0-or-later
// Which of a window's lists is in use, and the entries and keys that save and print it.
#pragma once

#include <QAbstractItemView>
#include <QObject>
#include <QPointer>

class QAction;
class QKeyEvent;
class QMenu;
class QTabWidget;

namespace tallywick {

class ListInUse : public QObject {
 public:
  explicit ListInUse(QTabWidget& pages);

  /// Entries for a menu, grey when it opens while there is no such list.
  QAction* saveEntry(const QMenu& menu);
  QAction* printEntry(const QMenu& menu);
  /// Saves or prints the list where the key says so and no list has the focus, which has these keys itself.
  bool answers(const QKeyEvent& event) const;

 private:
  /// An entry that does to the list what the list's own action of that text does.
  QAction* entry(const QMenu& menu, const QString& text, const QString& actionText);
  /// Triggers the list's action of that text.
  void act(const QString& actionText) const;
  /// The list that was in front last, else the topmost of the page, of several the leftmost.
  QAbstractItemView* list() const;

  QTabWidget& pages_;
  QPointer<QAbstractItemView> last_;
};

}  // namespace tallywick
