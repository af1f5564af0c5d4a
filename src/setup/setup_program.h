// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of tallywick-setup.
#pragma once

#include <iosfwd>

namespace tallywick::setup {

/// Runs the program. 0 when it did what was asked, 1 when it failed, 2 when the command line is wrong.
int runSetup(int argc, const char* const* argv, std::ostream& out, std::ostream& errors);

}  // namespace tallywick::setup
