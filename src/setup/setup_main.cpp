// SPDX-License-Identifier: GPL-3.0-or-later
// tallywick-setup: makes a data folder or an update server's tree.
#include "core/os.h"
#include "core/program_run.h"
#include "setup/setup_program.h"

#include <iostream>

int main(int argc, char** argv) {
  return tallywick::runToItsEnd("tallywick-setup", [&] {
    tallywick::CommandLine line(argc, argv);
    return tallywick::setup::runSetup(line.count(), line.arguments(),
                                      {std::cout, std::cerr, tallywick::os::isTerminalBehindErrors()});
  });
}
