// SPDX-License-Identifier: GPL-3.0-or-later
// The journal of a change of several files, as a crash, a disk or somebody else left it in a game folder.
#include "core/journal.h"

#include "core/runtime_error.h"
#include "core/text.h"
#include "core/work_files.h"
#include "fuzz/property.h"
#include "support/scratch_folder.h"

#include <algorithm>
#include <map>
#include <string>

namespace tallywick::fuzz {

namespace {

namespace fs = std::filesystem;

/// A game folder in the middle of a change, and files that are not part of it.
const std::map<std::string, std::string>& startingFiles() {
  static const std::map<std::string, std::string> files = {
      {"other.txt", "not ours"},
      {"other.txt.tw~", "never to be taken over"},
      {"QzrNumbers/QZR6PWR/A.Dat", "old a"},
      {"QzrNumbers/QZR6PWR/A.Dat.tw~", "new a"},
      {"QzrNumbers/QZR6PWR/B.Ply", "old b"},
      {"QzrNumbers/QZR6PWR/B.Ply.tw~", "new b"},
      {"QzrNumbers/QZR6PWR/C.Sav", "not in the change"},
  };
  return files;
}

void recover(const fs::path& folder) {
  try {
    recoverFolder(folder);
  } catch (const RuntimeError&) {
    require(false, "a journal that cannot be carried out keeps no folder from being used");
  }
}

bool isGiven(const std::map<std::string, std::string>& files, const std::string& text) {
  return std::any_of(files.begin(), files.end(), [&](const auto& file) { return file.second == text; });
}

void check(std::string_view journal) {
  static const test::ScratchFolder scratch;
  const std::string game = "QzrNumbers/QZR6PWR/";
  const fs::path folder = scratch.root() / game;
  for (const auto& entry : fs::directory_iterator(folder)) fs::remove(entry.path());
  for (const auto& [name, text] : startingFiles()) scratch.write(name, text);
  scratch.write(game + std::string(journalName), journal);

  recover(folder);
  const auto files = scratch.snapshot();
  for (const char* name : {"other.txt", "other.txt.tw~", "QzrNumbers/QZR6PWR/C.Sav"}) {
    require(files.contains(name) && files.at(name) == startingFiles().at(name),
            "what no journal may name stays");
  }
  for (const char* letter : {"A.Dat", "B.Ply"}) {
    const std::string name = game + letter;
    const std::string before = startingFiles().at(name);
    if (!files.contains(name)) {
      const std::string removal = join("remove ", fingerprint(before), " ");
      require(lowered(journal).find(removal + lowered(letter)) != std::string::npos,
              "no file of the folder is lost but one that the journal removes");
      continue;
    }
    const std::string& now = files.at(name);
    require(now == before || now == startingFiles().at(name + ".tw~"),
            "a file is the old one or the new one");
  }
  for (const auto& [name, text] : files) {
    require(name.find("QZR6PWR") != std::string::npos || startingFiles().contains(name),
            "nothing appears outside of the folder");
    require(isGiven(startingFiles(), text) || text == journal, "no contents are made up");
  }
  require(!files.contains(game + std::string(journalName)), "the journal is done with");

  recover(folder);
  require(scratch.snapshot() == files, "a second recovery finds nothing to do");
}

}  // namespace

}  // namespace tallywick::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tallywick::fuzz::check(tallywick::fuzz::textOf(data, size));
  return 0;
}
