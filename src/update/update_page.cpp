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

UpdateControls::UpdateControls(UpdatePage& page, MenuEntry& mnuPowerBall2, MenuEntry& mnuMegaMillions2)
    : page_(page),
      mnuPowerBall2_(mnuPowerBall2),
      mnuMegaMillions2_(mnuMegaMillions2),
      powerBallEnabled_(mnuPowerBall2.enabled()),
      megaMillionsEnabled_(mnuMegaMillions2.enabled()) {}

void UpdateControls::giveBack(std::string_view note) const {
  mnuPowerBall2_.setEnabled(powerBallEnabled_);
  mnuMegaMillions2_.setEnabled(megaMillionsEnabled_);
  page_.ProgressBar1.hide();
  page_.Command2.show();
  page_.StatusBar1.setPanel(1, note);
}

}  // namespace tallywick
