// SPDX-License-Identifier: GPL-3.0-or-later
// What the main() of each measured program does.
#pragma once

#include <cstdio>
#include <exception>

namespace tallywick::bench {

/// Runs the program and returns its exit code; what it raises goes to standard error and is exit code 1.
template <typename Run>
int reported(Run run, int count, char** arguments) {
  try {
    return run(count, arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}

}  // namespace tallywick::bench
