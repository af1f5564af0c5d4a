// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program_run.h"
#include "ui/script/program.h"

int main(int argumentCount, char** arguments) {
  return tallywick::runToItsEnd("tallywick-script",
                                [&] { return tallywick::script::runProgram(argumentCount, arguments); });
}
