// SPDX-License-Identifier: GPL-3.0-or-later
// What is made of files and asked for after every press: it is made anew only where one of them has changed.
#pragma once

#include "core/data_folder.h"
#include "core/os.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace tallywick {

/// The stamps of files of the data folder.
inline std::vector<os::FileStamp> stampsOf(const DataFolder& folder, std::span<const std::string> files) {
  std::vector<os::FileStamp> stamps;
  for (const std::string& file : files) stamps.push_back(os::stampOf(folder.resolve(file)));
  return stamps;
}

template <typename Value>
class Remembered {
 public:
  /// What `make` gives, or what it gave while the files had the same stamps. What it raises leaves nothing
  /// remembered.
  template <typename Make>
  const Value& of(std::vector<os::FileStamp> stamps, const Make& make) {
    if (value_ && stamps_ == stamps) return *value_;
    stamps_ = std::move(stamps);
    // A second write within one step of the file system's clock may leave the stamp as it is.
    const auto steady = std::filesystem::file_time_type::clock::now() - std::chrono::seconds(2);
    const bool isSteady =
        std::ranges::all_of(stamps_, [&](const os::FileStamp& s) { return s.written < steady; });
    value_.reset();
    value_.emplace(make());
    if (!isSteady) stamps_.clear();
    return *value_;
  }

 private:
  std::optional<Value> value_;
  std::vector<os::FileStamp> stamps_;
};

}  // namespace tallywick
