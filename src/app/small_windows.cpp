// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/small_windows.h"

#include "core/text.h"

namespace tallywick {

SplashForm::SplashForm()
    : Form("frmSplash"),
      Frame1(*this, "Frame1"),
      lblProductName(*this, "lblProductName", "Tallywick"),
      lblVersion(*this, "lblVersion", join("Version ", programVersion())) {
  setTitle("Tallywick");
}

// Kept slip: the box names the release that the record book's files belong to, whatever the program's own
// version is.
AboutForm::AboutForm()
    : Form("frmAbout"),
      lblTitle(*this, "lblTitle", "Tallywick"),
      lblVersion(*this, "lblVersion", "Version 2.1.0"),
      lblDescription(*this, "lblDescription", "A record book for PowerBall and Mega Millions."),
      cmdOK(*this, "cmdOK", "OK"),
      cmdSysInfo(*this, "cmdSysInfo", "System Info...") {
  setTitle("About Tallywick");
}

const char* programVersion() {
  return TALLYWICK_VERSION;
}

}  // namespace tallywick
