// SPDX-License-Identifier: GPL-3.0-or-later
// The draw count: for how many draws the current plays are entered.
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tallywick {

namespace {

/// By count, from one.
constexpr std::array<std::string_view, 10> captions = {oneDraw, "   2", "   3", "   4", "   5",
                                                       "   6",  "   7", "   8", "   9", "  10"};

}  // namespace

int drawCountOf(std::string_view caption) {
  const auto found = std::find(captions.begin(), captions.end(), caption);
  return found == captions.end() ? 1 : static_cast<int>(found - captions.begin()) + 1;
}

void Command1_Click(SelectionForm& form) {
  form.Command1.setEnabled(false);
  form.Command7.setEnabled(false);
  form.Command4.setEnabled(true);
  form.Command5.setEnabled(true);
  form.Label1.show();
  form.Label1.setCaption(oneDraw);
}

void Command4_Click(SelectionForm& form) {
  const auto count = static_cast<std::size_t>(drawCountOf(form.Label1.caption()));
  form.Label1.setCaption(captions[count % captions.size()]);
}

void Command7_Click(SelectionForm& form) {
  if (form.Label1.visible()) return;
  form.Label1.show();
  form.Command1.setEnabled(true);
  form.Command7.setEnabled(false);
}

}  // namespace tallywick
