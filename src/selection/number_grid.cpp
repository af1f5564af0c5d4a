// SPDX-License-Identifier: GPL-3.0-or-later
// The number grid: its marks, what a press does to them, and Clear.
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

namespace tallywick {

namespace {

Mark afterPress(Mark mark, bool canBeExtra) {
  if (mark == Mark::none) return Mark::main;
  return mark == Mark::main && canBeExtra ? Mark::extra : Mark::none;
}

}  // namespace

Mark markOf(const Button& button) {
  if (button.backColor() == colors::cyan) return Mark::main;
  return button.backColor() == colors::magenta ? Mark::extra : Mark::none;
}

void setMark(Button& button, Mark mark) {
  constexpr Color marks[] = {colors::threeDLight, colors::cyan, colors::magenta};
  button.setBackColor(marks[static_cast<std::size_t>(mark)]);
}

void SelectionForm::unmarkAll() {
  for (const auto& button : numbers) setMark(*button, Mark::none);
}

void Number_Click(SelectionForm& form, int number) {
  Button& button = form.button(number);
  const Mark mark = afterPress(markOf(button), number <= form.rules.threeMarks);
  setMark(button, mark);
  if (mark == Mark::none) form.Command7.hide();
  form.Command59.show();
}

void Command84_Click(SelectionForm& form) {
  form.unmarkAll();
  if (markOf(form.Command59) != Mark::none) setMark(form.Command59, Mark::none);
}

}  // namespace tallywick
