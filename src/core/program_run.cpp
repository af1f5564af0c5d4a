// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program_run.h"

#include "core/os.h"
#include "core/runtime_error.h"

#include <iostream>

namespace tallywick {

int runToItsEnd(std::string_view name, const std::function<int()>& program) noexcept {
  try {
    os::reportSizeLimit();
    return program();
  } catch (...) {
    std::cerr << name << ": " << currentRuntimeError().what() << '\n';
    return 1;
  }
}

}  // namespace tallywick
