// SPDX-License-Identifier: GPL-3.0-or-later
// The summary page: the last fifteen draws and the numbers that recur on the left, the player's winning
// plays, the amounts and the earlier draws on the right.
#pragma once

#include <QWidget>

namespace tallywick {

class Binding;
class FormWindow;
class MainForm;

/// What the star beside an amount means, in the list of the newest draws and in that of all amounts.
struct StarMeaning {
  const char* brief;
  const char* full;
};
inline constexpr StarMeaning newestStar = {"starts anew", "the jackpot starts anew at this amount"};
inline constexpr StarMeaning amountStar = {"somebody won", "somebody won in this draw"};

class SummaryView : public QWidget {
 public:
  SummaryView(MainForm& form, FormWindow& window);

 private:
  QWidget* drawsSide(MainForm& form, Binding& binding);
  QWidget* playsSide(MainForm& form, FormWindow& window);
  QWidget* frequentNumbers(MainForm& form, Binding& binding);
  QWidget* amounts(MainForm& form, Binding& binding);
  QWidget* luckyFive(MainForm& form, Binding& binding);
};

}  // namespace tallywick
