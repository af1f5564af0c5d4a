// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program_run.h"
#include "ui/script/script_program.h"

int main(int argumentCount, char** arguments) {
  return tallywick::runToItsEnd(
      "tallywick-script", [&] { return tallywick::script::runScriptProgram(argumentCount, arguments); });
}
