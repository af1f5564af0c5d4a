// SPDX-License-Identifier: GPL-3.0-or-later
// qzrsrt3: the sort tool that runs after play-file maintenance.
#include "core/program_run.h"
#include "sort/sort_plays.h"

#include <iostream>

int main(int argc, char** argv) {
  return tallywick::runToItsEnd("qzrsrt3",
                                [&] { return tallywick::sort::runSort(argc, argv, std::cout, std::cerr); });
}
