// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests ask of the system they run on.
#pragma once

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace tallywick::test {

/// Whether files have links, rights, and names of two spellings here; tests of these are left out elsewhere.
#ifdef _WIN32
inline constexpr bool hasPosixFiles = false;
#else
inline constexpr bool hasPosixFiles = true;
#endif

/// The folder of a published tree that a server shows as "/D:/". No folder can have that name on Windows:
/// there the server has to show the tree itself under it.
inline std::filesystem::path driveOf(const std::filesystem::path& tree) {
  return hasPosixFiles ? tree / "D:" : tree;
}

/// Gives `file` a time that no write gives it now, and returns it.
inline std::filesystem::file_time_type makeOld(const std::filesystem::path& file) {
  std::filesystem::last_write_time(file,
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(24));
  return std::filesystem::last_write_time(file);
}

/// What is said of a TLS connection that ends too early, where other systems say `text`: the TLS of Windows
/// ends the transfer itself.
inline std::string cutOff(const std::string& text, const std::string& address) {
  return hasPosixFiles ? text : "connection lost during \"" + address + "\"";
}

/// Gives the environment's variable `name` a value; an empty one removes it.
inline void setVariable(const std::string& name, const std::string& value) {
#ifdef _WIN32
  ::_putenv_s(name.c_str(), value.c_str());
#else
  if (value.empty()) {
    ::unsetenv(name.c_str());
  } else {
    ::setenv(name.c_str(), value.c_str(), 1);
  }
#endif
}

/// A link `link` to `target`, or a copy of it where there are no links.
inline void linkOrCopy(const std::filesystem::path& target, const std::filesystem::path& link) {
  if (hasPosixFiles) {
    std::filesystem::create_symlink(target, link);
  } else {
    std::filesystem::copy_file(target, link);
  }
}

}  // namespace tallywick::test
