// SPDX-License-Identifier: GPL-3.0-or-later
// A data folder of a test's own, and the texts that go into its files.
#pragma once

#include "core/data_folder.h"
#include "support/host.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

namespace tallywick::test {

/// A fresh data folder with empty game folders, removed at the end.
class ScratchFolder {
 public:
  ScratchFolder() : root_(freshPath()), folder_(root_) {
    for (const char* name : {"QZR6PWR", "QZR6MEG", "PlyNumbers"}) {
      std::filesystem::create_directories(root_ / "QzrNumbers" / name);
    }
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(root_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const DataFolder& folder() const { return folder_; }
  const std::filesystem::path& root() const { return root_; }

  void write(std::string_view written, std::string_view text) const {
    const std::filesystem::path file = folder_.resolve(written);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << text;
  }
  std::string read(std::string_view written) const {
    std::ifstream file(folder_.resolve(written), std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }
  bool exists(std::string_view written) const { return folder_.exists(written); }

  /// Every file below the folder with its bytes, but for lock files.
  std::map<std::string, std::string> snapshot() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root_)) {
      if (!entry.is_regular_file() || entry.path().extension() == ".LCK") continue;
      const std::string name = std::filesystem::relative(entry.path(), root_).generic_string();
      files[name] = read(name);
    }
    return files;
  }

 private:
  /// In memory where the system has such a folder: tests that kill and run again wait for the disk otherwise.
  static std::filesystem::path holder() {
    const std::filesystem::path memory = "/dev/shm";
    const bool mayUse = hasPosixFiles && std::getenv("TMPDIR") == nullptr;
    return mayUse && std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
  }

  /// A folder that did not exist before.
  static std::filesystem::path freshPath() {
    std::random_device random;
    for (;;) {
      std::filesystem::path path = holder() / ("tallywick-test-" + std::to_string(random()));
      if (std::filesystem::create_directory(path)) return path;
    }
  }

  std::filesystem::path root_;
  DataFolder folder_;
};

/// One record a line, as the record book writes it: fields in quotes, CR LF. Fields are given with commas
/// between.
inline std::string records(std::initializer_list<std::string_view> lines) {
  std::string text;
  for (std::string_view line : lines) {
    text += '"';
    for (char letter : line) text += letter == ',' ? std::string("\",\"") : std::string(1, letter);
    text += "\"\r\n";
  }
  return text;
}

}  // namespace tallywick::test
