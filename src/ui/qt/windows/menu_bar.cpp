// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/menu_bar.h"

#include "ui/qt/binding/binding.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <iterator>
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

struct Key {
  std::string_view entry;
  char mnemonic;
};

/// Different ones within a menu; the menus of the bar have theirs in their captions.
constexpr Key keys[] = {
    {"mnuPowerBall", 'P'},  {"mnuMegaMillions", 'M'}, {"munSearches", 'S'},      {"mnuWinnings", 'W'},
    {"mnuExit", 'X'},       {"mnuUpdate", 'U'},       {"mnuPowerBall2", 'P'},    {"mnuMegaMillions2", 'M'},
    {"mnuSelections", 'S'}, {"mnuPowerBall3", 'P'},   {"mnuMegaMillions3", 'M'}, {"mnuHelp", 'H'},
    {"mnuQZRHelp", 'O'},    {"mnuGameInfo", 'G'},     {"mnuAbout", 'A'},
};

/// How the entry is worded: its own mnemonic, or that of the table.
Wording wordingOf(const MenuEntry& entry) {
  const auto* const key =
      std::ranges::find_if(keys, [&](const Key& each) { return each.entry == entry.name(); });
  return key == std::end(keys) ? Wording([](std::string_view caption) { return toQString(caption); })
                               : withMnemonic(key->mnemonic);
}

/// The desktop's, and Ctrl+Q where it has none or others. The same key twice would do nothing.
QList<QKeySequence> exitKeys() {
  const QKeySequence usual(Qt::CTRL | Qt::Key_Q);
  QList<QKeySequence> all = QKeySequence::keyBindings(QKeySequence::Quit);
  if (!all.contains(usual)) all += usual;
  return all;
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
      binding.bind(*entry, *menu->menuAction(), wordingOf(*entry));
    } else {
      QAction* action = entry->isSeparator() ? parent->addSeparator() : parent->addAction(QString());
      action->setMenuRole(QAction::NoRole);
      if (entry->name() == "mnuExit") action->setShortcuts(exitKeys());
      binding.bind(*entry, *action, wordingOf(*entry));
    }
  }
}

}  // namespace tallywick
