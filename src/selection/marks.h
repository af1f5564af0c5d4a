// SPDX-License-Identifier: GPL-3.0-or-later
// The marks of the number grid: a number's mark is its button's back colour.
#pragma once

#include "controls/controls.h"

#include <cstdint>

namespace tallywick {

class SelectionForm;

enum class Mark : std::uint8_t { none, main, extra };

Mark markOf(const Button& button);
void setMark(Button& button, Mark mark);
void unmarkAll(SelectionForm& form);

}  // namespace tallywick
