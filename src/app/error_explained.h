// SPDX-License-Identifier: GPL-3.0-or-later
// What a window says below the fixed text of a runtime error.
#pragma once

#include <string>

namespace tallywick {

class RuntimeError;

/// Paragraphs with an empty line between: which file and record, what the file is for, what changed and what
/// did not, what to do.
std::string errorExplained(const RuntimeError& error);

}  // namespace tallywick
