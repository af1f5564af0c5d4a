// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/menu_bar.h"

#include "ui/qt/binding/binding.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <unordered_map>

namespace tallywick {

namespace {

std::vector<MenuEntry*> entriesOf(const Form& form) {
  std::vector<MenuEntry*> entries;
  for (Control* control : form.controls()) {
    if (control->type() == ControlType::menu) entries.push_back(static_cast<MenuEntry*>(control));
  }
  return entries;
}

QMenu* newMenu(QMenuBar& bar, QMenu* parent) {
  auto* menu = parent != nullptr ? parent->addMenu(QString()) : bar.addMenu(QString());
  // A separator is shown where the model has one, at the top too.
  menu->setSeparatorsCollapsible(false);
  return menu;
}

}  // namespace

void fillMenuBar(QMenuBar& bar, Form& form, Binding& binding) {
  const std::vector<MenuEntry*> entries = entriesOf(form);
  std::unordered_map<const MenuEntry*, QMenu*> menus;
  const auto opensList = [&](const MenuEntry* entry) {
    for (const MenuEntry* other : entries) {
      if (other->parent() == entry) return true;
    }
    return false;
  };
  for (MenuEntry* entry : entries) {
    QMenu* parent = entry->parent() != nullptr ? menus.at(entry->parent()) : nullptr;
    if (parent == nullptr || opensList(entry)) {
      QMenu* menu = menus.emplace(entry, newMenu(bar, parent)).first->second;
      binding.bind(*entry, *menu->menuAction());
    } else {
      QAction* action = entry->isSeparator() ? parent->addSeparator() : parent->addAction(QString());
      action->setMenuRole(QAction::NoRole);
      binding.bind(*entry, *action);
    }
  }
}

}  // namespace tallywick
