// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/list_in_use.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMenu>
#include <QTabWidget>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// What every list calls these.
const QString saveAction = u"&Save…"_s;
const QString printAction = u"&Print…"_s;

}  // namespace

ListInUse::ListInUse(QTabWidget& pages) : QObject(&pages), pages_(pages) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    auto* list = qobject_cast<QAbstractItemView*>(now);
    if (list != nullptr && !list->actions().isEmpty() && pages_.isAncestorOf(list)) last_ = list;
  });
}

QAction* ListInUse::saveEntry(const QMenu& menu) {
  return entry(menu, u"Sa&ve List…\tCtrl+S"_s, saveAction);
}

QAction* ListInUse::printEntry(const QMenu& menu) {
  return entry(menu, u"Print &List…\tCtrl+Shift+P"_s, printAction);
}

// The lists' own actions and answers() have the keys.
QAction* ListInUse::entry(const QMenu& menu, const QString& text, const QString& actionText) {
  auto* made = new QAction(text, this);
  made->setToolTip(u"The list in use, else the first one of the page"_s);
  connect(made, &QAction::triggered, this, [this, actionText] { act(actionText); });
  connect(&menu, &QMenu::aboutToShow, made, [this, made] { made->setEnabled(list() != nullptr); });
  return made;
}

bool ListInUse::answers(const QKeyEvent& event) const {
  const bool isPrint = event.keyCombination() == (Qt::CTRL | Qt::SHIFT | Qt::Key_P);
  if (!isPrint && !event.matches(QKeySequence::Save)) return false;
  act(isPrint ? printAction : saveAction);
  return true;
}

void ListInUse::act(const QString& actionText) const {
  const QAbstractItemView* const used = list();
  if (used == nullptr) return;
  for (QAction* action : used->actions()) {
    if (action->text() == actionText) action->trigger();
  }
}

QAbstractItemView* ListInUse::list() const {
  if (last_ && last_->isVisible()) return last_;
  for (auto* each : pages_.currentWidget()->findChildren<QAbstractItemView*>()) {
    const bool isOfPicker = qobject_cast<QComboBox*>(each->parentWidget()) != nullptr;
    if (each->isVisible() && !each->actions().isEmpty() && !isOfPicker) return each;
  }
  return nullptr;
}

}  // namespace tallywick
