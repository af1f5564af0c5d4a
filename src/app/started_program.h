// SPDX-License-Identifier: GPL-3.0-or-later
// Starting the programs that the record book asks for by their install path.
#pragma once

#include <filesystem>
#include <string_view>

namespace tallywick {

class DataFolder;

/// A program as it is really started.
struct StartedProgram {
  std::filesystem::path program;
  /// Its only argument; empty where it has none.
  std::filesystem::path argument;
  std::filesystem::path workingFolder;
};

/// What is started for `program`: for a game folder's sort tool always the program's own, which is installed
/// beside the running program, on that game folder; for any other path the program of that path. Files of a
/// data folder come from servers and other people, so none of them is ever run: error 53.
StartedProgram startedProgram(const DataFolder& folder, std::string_view program,
                              std::string_view workingFolder);

/// Starts what startedProgram() gives. Where the platform cannot run it, standard error says so and why,
/// after the name of the running program, `reporter`.
void startAsked(const DataFolder& folder, std::string_view program, std::string_view workingFolder,
                std::string_view reporter);

}  // namespace tallywick
