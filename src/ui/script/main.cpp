// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/os.h"
#include "ui/script/program.h"

int main(int argumentCount, char** arguments) {
  tallywick::os::reportSizeLimit();
  return tallywick::script::runProgram(argumentCount, arguments);
}
