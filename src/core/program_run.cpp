// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/program_run.h"

#include "core/os.h"
#include "core/runtime_error.h"

#include <iostream>

namespace tallywick {

CommandLine::CommandLine(int argumentCount, char** arguments)
    : words_(os::commandLine(argumentCount, arguments)) {
  for (std::string& word : words_) pointers_.push_back(word.data());
  pointers_.push_back(nullptr);
}

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
