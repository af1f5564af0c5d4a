// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of a draw or an amount, from a row of an export or typed in, and what is wrong with them. Every
// function raises a std::runtime_error that says it.
#pragma once

#include "core/games.h"
#include "exports/entries.h"

#include <string>
#include <string_view>
#include <vector>

namespace tallywick::exports {

/// At most `most` characters of `text`, with what a terminal would not show as a hexadecimal number.
std::string visible(std::string_view text, std::size_t most);

/// MM-DD-YYYY or MM/DD/YYYY, a day not later than `today`.
Day checkedDay(std::string_view text, Day today);

int checkedNumber(std::string_view text);

/// Numbers with blanks or commas between them.
std::vector<int> checkedNumbers(std::string_view text);

/// Five different numbers from 1 to `highest`, in ascending order.
std::array<int, 5> checkedWhites(std::vector<int> numbers, int highest);

int checkedExtra(int number, int highest);

/// Without a leading zero; "1" for an empty text.
std::string checkedMultiplier(std::string_view text);

/// An amount as it is to be shown, and how many tickets won it; an empty count is 0.
AmountEntry checkedAmount(Day day, std::string_view amount, std::string_view marks);

/// The balls of a draw on `day`, five white ones and the extra ball, in the order of the files. Since the
/// last known change of the rules numbers up to 99 are taken; `notice` is set where they are new.
Balls checkedBalls(Game game, Day day, std::vector<int> numbers, std::string& notice);

}  // namespace tallywick::exports
