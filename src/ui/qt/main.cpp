// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/os.h"
#include "core/program_run.h"
#include "ui/qt/program/program.h"

int main(int argumentCount, char** arguments) {
  tallywick::os::joinConsole();
  return tallywick::runToItsEnd("tallywick", [&] { return tallywick::runProgram(argumentCount, arguments); });
}
