// SPDX-License-Identifier: GPL-3.0-or-later
// tallywick-setup: makes a data folder or an update server's tree.
#include "core/os.h"
#include "setup/setup_program.h"

#include <iostream>

int main(int argc, char** argv) {
  tallywick::os::reportSizeLimit();
  return tallywick::setup::runSetup(argc, argv, std::cout, std::cerr);
}
