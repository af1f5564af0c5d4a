// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/update_page.h"

namespace tallywick {

UpdatePage::UpdatePage(Form& form)
    : Command2(form, "Command2", "Update"),
      ProgressBar1(form, "ProgressBar1"),
      StatusBar1(form, "StatusBar1", 3),
      Command1(form, "Command1", "Move Drawn PowerBall Plays"),
      Command51(form, "Command51", "Move Drawn Mega Millions Plays") {
  ProgressBar1.hide();
}

}  // namespace tallywick
