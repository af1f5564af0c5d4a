// SPDX-License-Identifier: GPL-3.0-or-later
#include "search/marks.h"

#include "core/text.h"
#include "search/combinations.h"

#include <algorithm>
#include <array>

namespace tallywick {

bool isMarked(const Button& button) {
  return button.backColor() == colors::cyan;
}

void toggleMark(Button& button) {
  if (button.backColor() == colors::buttonFace) {
    button.setBackColor(colors::cyan);
  } else if (isMarked(button)) {
    button.setBackColor(colors::buttonFace);
  }
}

void unmarkAll(ButtonRow<6>& numbers) {
  for (Button& number : numbers) number.setBackColor(colors::buttonFace);
}

std::string firstMarkedNumber(const ButtonRow<6>& numbers) {
  const auto first = std::find_if(numbers.begin(), numbers.end(), isMarked);
  return first == numbers.end() ? std::string() : first->caption();
}

const Combination* chosenCombination(const ButtonRow<6>& numbers) {
  const auto chosen = std::find_if(combinations.begin(), combinations.end(), [&](const Combination& tried) {
    return std::all_of(tried.positions.begin(), tried.positions.end(), [&](std::size_t position) {
      return position == 0 || isMarked(numbers[position - 1]);
    });
  });
  return chosen == combinations.end() ? nullptr : &*chosen;
}

void setNumbers(ButtonRow<6>& numbers, std::string_view drawLine, std::size_t extraBallAt) {
  std::array<std::size_t, 6> positions = numbersInDrawLine;
  positions.back() = extraBallAt;
  for (std::size_t i = 0; i < positions.size(); ++i) numbers[i].setCaption(cut(drawLine, positions[i], 2));
}

void displayNumbers(ButtonRow<6>& numbers, std::string_view drawLine, std::size_t extraBallAt) {
  unmarkAll(numbers);
  setNumbers(numbers, drawLine, extraBallAt);
}

}  // namespace tallywick
