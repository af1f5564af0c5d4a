// SPDX-License-Identifier: GPL-3.0-or-later
// The settings file of a data folder.
#include "settings/settings.h"

#include "fuzz/property.h"
#include "support/scratch_folder.h"

#include <stdexcept>

namespace tallywick::fuzz {

namespace {

/// False where the settings cannot be read.
bool read(const DataFolder& folder, Settings& settings) {
  try {
    settings = readSettings(folder);
    return true;
  } catch (const std::invalid_argument& refused) {
    require(std::string_view(refused.what()).find(settingsFile) != std::string_view::npos,
            "a refusal names the file");
    return false;
  }
}

void check(std::string_view text) {
  static const test::ScratchFolder scratch;
  scratch.write(settingsFile, text);
  Settings settings;
  if (!read(scratch.folder(), settings)) {
    require(scratch.read(settingsFile) == text, "settings that are refused stay as they are");
    return;
  }
  try {
    writeSettings(scratch.folder(), settings);
  } catch (const std::invalid_argument&) {
    require(scratch.read(settingsFile) == text, "settings that cannot be written leave the file as it was");
    return;
  }
  Settings again;
  require(read(scratch.folder(), again), "what was written can be read");
  require(again == settings, "settings survive being written and read again");
  require(scratch.read(settingsFile) == settingsText(settings), "the file has the text of the settings");
}

}  // namespace

}  // namespace tallywick::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tallywick::fuzz::check(tallywick::fuzz::textOf(data, size));
  return 0;
}
