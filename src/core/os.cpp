// SPDX-License-Identifier: GPL-3.0-or-later
// What is the same on every platform.
#include "core/os.h"

namespace tallywick::os {

FileBytes readFile(const std::filesystem::path& file) {
  InputFile input(file);
  const std::size_t size = input.size();
  auto bytes = std::make_unique_for_overwrite<char[]>(size);
  std::size_t got = 0;
  while (got < size) {
    const std::size_t step = input.read(bytes.get() + got, size - got);
    if (step == 0) break;
    got += step;
  }
  return {std::move(bytes), got};
}

InputFile::InputFile(InputFile&& other) noexcept
    : file_(std::move(other.file_)), handle_(std::exchange(other.handle_, -1)) {}

InputFile& InputFile::operator=(InputFile&& other) noexcept {
  std::swap(file_, other.file_);
  std::swap(handle_, other.handle_);
  return *this;
}

FileLock::FileLock(FileLock&& other) noexcept
    : file_(std::move(other.file_)), handle_(std::exchange(other.handle_, -1)) {}

}  // namespace tallywick::os
