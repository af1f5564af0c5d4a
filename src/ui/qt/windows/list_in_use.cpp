// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/list_in_use.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMenu>
#include <QTabWidget>
#include <algorithm>
#include <utility>

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
  connect(made, &QAction::triggered, this, [this, actionText] { act(actionText); });
  connect(&menu, &QMenu::aboutToShow, made, [this, made] {
    const QAbstractItemView* const used = list();
    made->setEnabled(used != nullptr);
    const QString which = used != nullptr ? used->accessibleName() : QString();
    made->setToolTip(which);
    made->setStatusTip(which.isEmpty() ? which : u"The list: %1"_s.arg(which));
  });
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
  QList<QAbstractItemView*> lists = pages_.currentWidget()->findChildren<QAbstractItemView*>();
  lists.removeIf([](const QAbstractItemView* each) {
    const bool isOfPicker = qobject_cast<QComboBox*>(each->parentWidget()) != nullptr;
    return !each->isVisible() || each->actions().isEmpty() || isOfPicker;
  });
  const auto place = [this](const QAbstractItemView* each) {
    const QPoint corner = each->mapTo(&pages_, QPoint());
    return std::pair(corner.y(), corner.x());
  };
  const auto first = std::ranges::min_element(lists, {}, place);
  return first == lists.end() ? nullptr : *first;
}

}  // namespace tallywick
