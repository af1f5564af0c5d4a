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

fs::path folderOrHere(std::string_view folder) {
  std::error_code ignored;
  const fs::path path(folder);
  return fs::is_directory(path, ignored) ? path : fs::temp_directory_path();
}

}  // namespace

ProgramStart programStart(const DataFolder& folder, std::string_view program,
                          std::string_view workingFolder) {
  const std::size_t name = program.find_last_of("\\/") + 1;
  if (!equalIgnoringCase(program.substr(name), sortToolFile)) {
    return {fs::path(program), "", folderOrHere(workingFolder)};
  }
  const fs::path tool = folder.resolve(program);
  if (os::canRun(tool)) return {tool, "", folderOrHere(workingFolder)};
  return {ownSortTool(), tool.parent_path().string(), folderOrHere(workingFolder)};
}

}  // namespace tallywick
