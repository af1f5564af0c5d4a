#include "selection/selection_form.h"

#include "core/text.h"

namespace tallywick {

SelectionForm::SelectionForm(const GameInfo& gameInfo, SelectionSurroundings around)
    : Form(gameInfo.game == Game::powerBall ? "Form3" : "Form5"),
      game(gameInfo),
      surroundings(around),
      Command59(*this, "Command59", "Select"),
      Command9(*this, "Command9", "Quick Pick"),
      Command5(*this, "Command5", "Done"),
      Command60(*this, "Command60", "Replay"),
      Command84(*this, "Command84", "Clear"),
      Command1(*this, "Command1", "Draw"),
      Command4(*this, "Command4", "## PlaysDates"),
      Command7(*this, "Command7"),
      Label1(*this, "Label1", "    "),
      Label3(*this, "Label3", "Your Current Play Selection(s):"),
      Combo1(*this, "Combo1"),
      Label28(*this, "Label28", "Your Previous History Plays:"),
      Combo7(*this, "Combo7"),
      Label29(*this, "Label29", "Your Next Play(s) Selections:"),
      Combo8(*this, "Combo8"),
      List1(*this, "List1"),
      StatusBar1(*this, "StatusBar1", 3) {
  setTitle(join("The Tallywick Software... Selection (", game.name, ")"));
}

void SelectionForm::load() {}

}  // namespace tallywick
