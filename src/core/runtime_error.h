// SPDX-License-Identifier: GPL-3.0-or-later
// The numbered errors of the record book's runtime: what a handler raises and a binding shows.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

namespace tallywick {

/// Numbers of the errors that the program itself raises.
enum class ErrorNumber : std::int32_t {
  typeMismatch = 13,
  internalError = 51,
  deviceIoError = 57,
  fileNotFound = 53,
  diskFull = 61,
  inputPastEnd = 62,
  permissionDenied = 70,
  pathFileAccess = 75,
  pathNotFound = 76,
};

/// An error with the runtime's number and text. `where` names the file, and the record where there is one; it
/// is meant for standard error, not for the message box.
class RuntimeError : public std::runtime_error {
 public:
  explicit RuntimeError(ErrorNumber number, std::string where = {});
  /// An error raised by a class of the program with a number and text of its own (the transfer classes).
  RuntimeError(std::int32_t number, std::string description, std::string where, std::string source = {});

  std::int32_t number() const { return number_; }
  const std::string& description() const { return description_; }
  const std::string& where() const { return where_; }
  /// The class that raised it, for example "ftp.Download"; empty for the runtime's own errors.
  const std::string& source() const { return source_; }
  bool is(ErrorNumber number) const { return number_ == static_cast<std::int32_t>(number); }

  /// `Run-time error '53':`, an empty line, the description; a negative number is followed by its hexadecimal
  /// form.
  std::string boxText() const;

 private:
  std::int32_t number_;
  std::string description_;
  std::string where_;
  std::string source_;
};

/// Error 70 where another program holds the lock of a folder: nothing has been done, and a later try may
/// succeed.
class LockedByAnother : public RuntimeError {
 public:
  explicit LockedByAnother(const std::filesystem::path& lockFile);
};

/// The exception being handled as a runtime error: itself, or the equivalent of one of the library's.
RuntimeError currentRuntimeError();

/// Error 75 where `file` is a pipe, a device or whatever else is neither a file nor a folder.
RuntimeError notAFile(const std::filesystem::path& file);

/// The runtime error for an operating system error on `file`.
RuntimeError runtimeErrorFrom(std::error_code code, const std::filesystem::path& file);

}  // namespace tallywick
