// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/os.h"
#include "ui/qt/program.h"

int main(int argumentCount, char** arguments) {
  tallywick::os::reportSizeLimit();
  return tallywick::runProgram(argumentCount, arguments);
}
