// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/runtime_error.h"

#include "core/file_names.h"
#include "core/text.h"

#include <array>
#include <utility>

namespace tallywick {

namespace {

/// The runtime's text for a number, for example "File not found".
std::string_view descriptionOf(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::typeMismatch:
      return "Type mismatch";
    case ErrorNumber::internalError:
      return "Internal error";
    case ErrorNumber::deviceIoError:
      return "Device I/O error";
    case ErrorNumber::fileNotFound:
      return "File not found";
    case ErrorNumber::diskFull:
      return "Disk full";
    case ErrorNumber::inputPastEnd:
      return "Input past end of file";
    case ErrorNumber::permissionDenied:
      return "Permission denied";
    case ErrorNumber::pathFileAccess:
      return "Path/File access error";
    case ErrorNumber::pathNotFound:
      return "Path not found";
  }
  return "Application-defined or object-defined error";
}

std::string inspection(std::string_view description, std::string_view where) {
  return where.empty() ? std::string(description) : join(description, ": ", where);
}

std::string hexadecimal(std::uint32_t value) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (int shift = 28; shift >= 0; shift -= 4) text += digits[(value >> shift) & 0xFU];
  return text;
}

}  // namespace

RuntimeError::RuntimeError(ErrorNumber number, std::string where)
    : RuntimeError(static_cast<std::int32_t>(number), std::string(descriptionOf(number)), std::move(where)) {}

RuntimeError::RuntimeError(std::int32_t number, std::string description, std::string where,
                           std::string source)
    : std::runtime_error(inspection(description, where)),
      number_(number),
      description_(std::move(description)),
      where_(std::move(where)),
      source_(std::move(source)) {}

LockedByAnother::LockedByAnother(const std::filesystem::path& lockFile)
    : RuntimeError(ErrorNumber::permissionDenied, textOf(lockFile)) {}

std::string RuntimeError::boxText() const {
  std::string number = std::to_string(number_);
  std::string hex = number_ < 0 ? join(" (", hexadecimal(static_cast<std::uint32_t>(number_)), ")") : "";
  return join("Run-time error '", number, hex, "':\n\n", description_);
}

RuntimeError currentRuntimeError() {
  try {
    throw;
  } catch (const RuntimeError& error) {
    return error;
  } catch (const std::filesystem::filesystem_error& error) {
    return runtimeErrorFrom(error.code(), error.path1());
  } catch (const std::exception& error) {
    return RuntimeError(ErrorNumber::internalError, error.what());
  } catch (...) {
    return RuntimeError(ErrorNumber::internalError);
  }
}

RuntimeError notAFile(const std::filesystem::path& file) {
  return RuntimeError(ErrorNumber::pathFileAccess, join(textOf(file), " (not a file)"));
}

RuntimeError runtimeErrorFrom(std::error_code code, const std::filesystem::path& file) {
  const auto is = [&](std::errc condition) { return code == condition; };
  ErrorNumber number = ErrorNumber::deviceIoError;
  if (is(std::errc::no_such_file_or_directory)) {
    std::error_code ignored;
    const bool folderExists = std::filesystem::is_directory(file.parent_path(), ignored);
    number = folderExists ? ErrorNumber::fileNotFound : ErrorNumber::pathNotFound;
  } else if (is(std::errc::not_a_directory)) {
    number = ErrorNumber::pathNotFound;
  } else if (is(std::errc::permission_denied) || is(std::errc::operation_not_permitted) ||
             is(std::errc::read_only_file_system) || is(std::errc::device_or_resource_busy)) {
    number = ErrorNumber::permissionDenied;
  } else if (is(std::errc::no_space_on_device) || is(std::errc::file_too_large)) {
    number = ErrorNumber::diskFull;
  } else if (is(std::errc::is_a_directory) || is(std::errc::invalid_argument) ||
             is(std::errc::filename_too_long) || is(std::errc::too_many_files_open) ||
             is(std::errc::too_many_symbolic_link_levels)) {
    number = ErrorNumber::pathFileAccess;
  }
  return RuntimeError(number, join(textOf(file), " (", code.message(), ")"));
}

}  // namespace tallywick
