// The marks of the search pages' number buttons: cyan is marked, button face is not.
#pragma once

#include "controls/controls.h"

namespace tallywick {

bool isMarked(const Button& button);

/// Button face becomes cyan, cyan button face; any other colour stays.
void toggleMark(Button& button);

}  // namespace tallywick
