// SPDX-License-Identifier: GPL-3.0-or-later
// qzrsrt3: the sort tool that runs after play-file maintenance.
#include "core/program_run.h"
#include "sort/sort_plays.h"

#include <iostream>

int main(int argc, char** argv) {
  return tallywick::runToItsEnd("qzrsrt3", [&] {
    tallywick::CommandLine line(argc, argv);
    return tallywick::sort::runSort(line.count(), line.arguments(), std::cout, std::cerr);
  });
}
