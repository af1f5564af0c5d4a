// SPDX-License-Identifier: GPL-3.0-or-later
// The frame that each program's main() puts around it.
#pragma once

#include <functional>
#include <string_view>

namespace tallywick {

/// Runs a program, prepared for limits on file sizes, and returns its exit code. What it lets escape is
/// written to standard error after the program's name, and the exit code is 1.
int runToItsEnd(std::string_view name, const std::function<int()>& program) noexcept;

}  // namespace tallywick
