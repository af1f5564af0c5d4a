#include "search/marks.h"

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

}  // namespace tallywick
