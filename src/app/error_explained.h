// SPDX-License-Identifier: GPL-3.0-or-later
// What a window says below the fixed text of a runtime error.
#pragma once

#include <filesystem>
#include <string>

namespace tallywick {

class RuntimeError;

/// Paragraphs with an empty line between: which file and record, what the file is for, what changed and what
/// did not, what to do.
std::string errorExplained(const RuntimeError& error);

/// That the program ends with the error, and what comes then.
std::string endExplained(const RuntimeError& error);

/// What mends a file of the record book, with the whole copies of it that are beside it.
std::string mendingOf(const std::filesystem::path& file);

}  // namespace tallywick
