// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of tallywick-setup.
#pragma once

#include <iosfwd>

namespace tallywick::setup {

struct Outputs {
  std::ostream& out;
  std::ostream& errors;
  /// Whether somebody reads `errors` as it is written.
  bool isTerminal = false;
};

/// Runs the program. 0 when it did what was asked, 1 when it failed, 2 when the command line is wrong.
int runSetup(int argc, const char* const* argv, const Outputs& outputs);

}  // namespace tallywick::setup
