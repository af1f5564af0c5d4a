// SPDX-License-Identifier: GPL-3.0-or-later
// The program tallywick-script: its command line, start-up and exit codes.
#pragma once

namespace tallywick::script {

/// 0; 1 after a runtime error; 2 where the command line, the settings or a line cannot be understood.
int runScriptProgram(int argumentCount, char** arguments);

}  // namespace tallywick::script
