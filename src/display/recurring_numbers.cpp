// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/recurring_numbers.h"

#include "core/text.h"

#include <algorithm>

namespace tallywick {

namespace {

/// How a kept draw held a number; empty where it did not.
std::string_view placeIn(const KeptDraw& kept, std::string_view number) {
  const auto& white = kept.draw.white;
  if (std::find(white.begin(), white.end(), number) != white.end()) return ":";
  if (kept.draw.extra == number) return " as the extra ball:";
  // Kept slip: the last field counts as a number, so that a multiplier "10" repeats the ball "10".
  if (kept.lastField == number) return " in the record's last field:";
  return {};
}

void putOnButtons(const Draw& newest, ButtonRow<6>& buttons) {
  for (std::size_t i = 0; i < newest.white.size(); ++i) buttons[i].setCaption(newest.white[i]);
  buttons[5].setCaption(newest.extra);
  for (Button& button : buttons) button.setBackColor(colors::buttonFace);
}

void addHit(ListBox& hits, const Button& button, std::size_t age, const KeptDraw& kept,
            std::string_view place) {
  hits.add(join(" ", button.caption(),
                age == 1 ? ", 1 draw before" : ", " + std::to_string(age) + " draws before", place));
  hits.add(join(" ", kept.draw.line()));
  hits.add(" ");
}

}  // namespace

void showRecurringNumbers(std::span<const KeptDraw> newestFirst, ButtonRow<6>& buttons, ListBox& hits) {
  hits.clear();
  if (newestFirst.empty()) return;
  const Draw& newest = newestFirst.front().draw;
  putOnButtons(newest, buttons);
  const std::size_t tests = std::min(colors::recurring.size(), newestFirst.size() - 1);
  for (std::size_t ball = 0; ball < newest.white.size(); ++ball) {
    for (std::size_t age = 1; age <= tests; ++age) {
      const std::string_view place = placeIn(newestFirst[age], newest.white[ball]);
      if (place.empty()) continue;
      buttons[ball].setBackColor(colors::recurring[age - 1]);
      addHit(hits, buttons[ball], age, newestFirst[age], place);
    }
  }
}

}  // namespace tallywick
