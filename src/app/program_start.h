// Starting the programs that the record book asks for by their install path.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tallywick {

class DataFolder;

/// A program as it is really started.
struct ProgramStart {
  std::filesystem::path program;
  /// Its only argument; empty where it has none.
  std::string argument;
  std::filesystem::path workingFolder;
};

/// What stands for `program`: a game folder's sort tool where it can run here, else the program's own sort
/// tool on that folder; any other path as it is written. A file of a game folder came over the network and is
/// never given the right to run.
ProgramStart programStart(const DataFolder& folder, std::string_view program, std::string_view workingFolder);

}  // namespace tallywick
