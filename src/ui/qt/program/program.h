// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program from its command line to its end.
#pragma once

namespace tallywick {

int runProgram(int argumentCount, char** arguments);

}  // namespace tallywick
