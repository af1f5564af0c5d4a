// SPDX-License-Identifier: GPL-3.0-or-later
// Replay: marks a play of the history again.
#include "core/plays.h"
#include "core/text.h"
#include "selection/selection_form.h"
#include "selection/selection_handlers.h"

#include <algorithm>
#include <array>

namespace tallywick {

void Command60_Click(SelectionForm& form) {
  form.Command59.show();
  std::array<std::string_view, 6> numbers;
  std::transform(numbersInPlayItem.begin(), numbersInPlayItem.end(), numbers.begin(),
                 [&](std::size_t place) { return cut(form.Combo7.text(), place, 2); });

  form.unmarkAll();
  for (int number = 1; number <= form.rules.replayMain; ++number) {
    Button& button = form.button(number);
    const bool isPlayed = std::find(numbers.begin(), numbers.end(), button.caption()) != numbers.end();
    if (isPlayed) setMark(button, Mark::main);
    if (number <= form.rules.replayExtra && button.caption() == numbers.back()) setMark(button, Mark::extra);
  }
}

}  // namespace tallywick
