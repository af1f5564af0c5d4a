// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/started_program.h"

#include "core/data_folder.h"
#include "core/games.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <iostream>
#include <system_error>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

fs::path ownSortTool() {
  const fs::path self = os::programFile();
  const fs::path extension = self.extension() == ".exe" ? ".exe" : "";
  return self.parent_path() / fs::path("qzrsrt3").concat(extension.native());
}

bool isBelow(const fs::path& folder, const fs::path& file) {
  std::error_code ignored;
  const fs::path way =
      fs::weakly_canonical(file, ignored).lexically_relative(fs::weakly_canonical(folder, ignored));
  return !way.empty() && way.begin()->native() != fs::path("..").native();
}

/// The working folder as it is written where this platform has it, else the data folder.
fs::path existingFolder(std::string_view written, const DataFolder& folder) {
  std::error_code ignored;
  const fs::path path = pathOf(written);
  return fs::is_directory(path, ignored) ? path : folder.root();
}

}  // namespace

StartedProgram startedProgram(const DataFolder& folder, std::string_view program,
                              std::string_view workingFolder) {
  const fs::path startsIn = existingFolder(workingFolder, folder);
  const std::size_t name = program.find_last_of("\\/") + 1;
  if (equalIgnoringCase(program.substr(name), sortToolFile)) {
    return {ownSortTool(), folder.resolve(program.substr(0, name)), startsIn};
  }
  const fs::path file = pathOf(program);
  if (isBelow(folder.root(), file)) {
    throw RuntimeError(ErrorNumber::fileNotFound, join(textOf(file), " is a file of the record book"));
  }
  return {file, {}, startsIn};
}

void startAsked(const DataFolder& folder, std::string_view program, std::string_view workingFolder,
                std::string_view reporter) {
  const StartedProgram really = startedProgram(folder, program, workingFolder);
  if (os::canRun(really.program)) {
    os::startProgram(really.program, really.argument, really.workingFolder);
    return;
  }
  std::error_code ignored;
  const std::string_view why =
      fs::exists(really.program, ignored) ? "it is no program that may run here" : "there is no such file";
  std::cerr << join(reporter, ": ", textOf(really.program), " cannot be started, ", why, "\n");
}

}  // namespace tallywick
