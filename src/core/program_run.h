// SPDX-License-Identifier: GPL-3.0-or-later
// The frame that each program's main() puts around it.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

/// The command line as UTF-8, in the form of main()'s arguments.
class CommandLine {
 public:
  CommandLine(int argumentCount, char** arguments);
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;

  int count() const { return static_cast<int>(words_.size()); }
  char** arguments() { return pointers_.data(); }

 private:
  std::vector<std::string> words_;
  /// To the words, and a null.
  std::vector<char*> pointers_;
};

/// Runs a program, prepared for limits on file sizes, and returns its exit code. What it lets escape is
/// written to standard error after the program's name, and the exit code is 1.
int runToItsEnd(std::string_view name, const std::function<int()>& program) noexcept;

}  // namespace tallywick
