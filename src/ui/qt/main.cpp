// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/os.h"
#include "core/program_run.h"
#include "ui/qt/program/program.h"

int main(int argumentCount, char** arguments) {
  tallywick::os::joinConsole();
  return tallywick::runToItsEnd("tallywick", [&] {
    tallywick::CommandLine line(argumentCount, arguments);
    return tallywick::runProgram(line.count(), line.arguments());
  });
}
