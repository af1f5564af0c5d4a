// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program_run.h"
#include "ui/script/script_program.h"

int main(int argumentCount, char** arguments) {
  return tallywick::runToItsEnd("tallywick-script", [&] {
    tallywick::CommandLine line(argumentCount, arguments);
    return tallywick::script::runScriptProgram(line.count(), line.arguments());
  });
}
