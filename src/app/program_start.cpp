#include "app/program_start.h"

#include "core/data_folder.h"
#include "core/games.h"
#include "core/os.h"
#include "core/text.h"

namespace tallywick {

namespace fs = std::filesystem;

namespace {

/// The program's own sort tool, which is installed beside the program.
fs::path ownSortTool() {
  const fs::path self = os::programFile();
  return (self.parent_path() / "qzrsrt3").replace_extension(self.extension());
}

/// The working folder as it is written where this platform has it, else the data folder.
fs::path standingFolder(std::string_view written, const DataFolder& folder) {
  std::error_code ignored;
  const fs::path path(written);
  return fs::is_directory(path, ignored) ? path : folder.root();
}

}  // namespace

ProgramStart programStart(const DataFolder& folder, std::string_view program,
                          std::string_view workingFolder) {
  const fs::path startsIn = standingFolder(workingFolder, folder);
  const std::size_t name = program.find_last_of("\\/") + 1;
  if (!equalIgnoringCase(program.substr(name), sortToolFile)) {
    return {fs::path(program), "", startsIn};
  }
  const fs::path tool = folder.resolve(program);
  if (os::canRun(tool)) return {tool, "", startsIn};
  return {ownSortTool(), tool.parent_path().string(), startsIn};
}

}  // namespace tallywick
