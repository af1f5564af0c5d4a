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
  /// The program's name.
  Label lblProductName;
  /// The program's own version.
  Label lblVersion;
};

class AboutForm : public Form {
 public:
  AboutForm();

  /// The program's name.
  Label lblTitle;
  /// The release that the record book's files belong to, whatever the program's own version is.
  Label lblVersion;
  /// What the program is for.
  Label lblDescription;
  /// Closes the box.
  Button cmdOK;
  /// Starts the system's information program where the registry names one.
  Button cmdSysInfo;
};

/// The program's own version, for example "2.1.0".
const char* programVersion();

}  // namespace tallywick
