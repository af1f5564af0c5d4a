// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/form.h"

#include "controls/controls.h"

#include <stdexcept>
#include <utility>

namespace tallywick {

Control* Form::find(std::string_view name) const {
  const auto found = byName_.find(std::string(name));
  return found == byName_.end() ? nullptr : found->second;
}

void Form::addAlias(std::string_view alias, Control& control) {
  if (!byName_.emplace(alias, &control).second) {
    throw std::logic_error(name_ + " has two controls named " + std::string(alias));
  }
}

std::vector<Control*> Form::takeChanges() {
  std::vector<Control*> changed = std::exchange(changed_, {});
  for (Control* control : changed) control->changed_ = false;
  return changed;
}

void Form::enter(Control& control) {
  addAlias(control.name(), control);
  controls_.push_back(&control);
}

}  // namespace tallywick
