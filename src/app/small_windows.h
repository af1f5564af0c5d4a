// SPDX-License-Identifier: GPL-3.0-or-later
// The splash window and the about box.
#pragma once

#include "controls/controls.h"

namespace tallywick {

/// The first window of the program; its timer brings the main window.
class SplashForm : public Form {
 public:
  SplashForm();
  static constexpr int timerMilliseconds = 2000;

  /// A click on it closes the window.
  Frame Frame1;
  Label lblProductName;
  Label lblVersion;
};

class AboutForm : public Form {
 public:
  AboutForm();

  Label lblTitle;
  Label lblVersion;
  Label lblDescription;
  Button cmdOK;
  Button cmdSysInfo;
};

/// The program's own version, for example "2.1.0".
const char* programVersion();

}  // namespace tallywick
