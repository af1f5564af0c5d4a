// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of number buttons, made from a table of names.
#pragma once

#include "controls/controls.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace tallywick {

/// So many buttons with their names from one table.
template <std::size_t Count>
struct ButtonRow {
  ButtonRow(Form& form, const std::array<std::string_view, Count>& names)
      : ButtonRow(form, names, std::make_index_sequence<Count>()) {}

  Button& operator[](std::size_t index) { return buttons[index]; }
  const Button& operator[](std::size_t index) const { return buttons[index]; }
  auto begin() { return buttons.begin(); }
  auto end() { return buttons.end(); }
  auto begin() const { return buttons.begin(); }
  auto end() const { return buttons.end(); }
  static constexpr std::size_t size() { return Count; }

  std::array<Button, Count> buttons;

 private:
  template <std::size_t... Index>
  ButtonRow(Form& form, const std::array<std::string_view, Count>& names, std::index_sequence<Index...>)
      : buttons{Button(form, names[Index])...} {}
};

}  // namespace tallywick
