// SPDX-License-Identifier: GPL-3.0-or-later
// The platform file of Windows.
#include "core/file_names.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <thread>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// Needs what the one above declares.
#include <shellapi.h>

namespace tallywick::os {

namespace fs = std::filesystem;

namespace {

bool isFolder(const fs::path& file) {
  const DWORD attributes = ::GetFileAttributesW(file.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

/// Whether `file` is itself a link, to a file or to a folder.
bool isLink(const fs::path& file) {
  WIN32_FIND_DATAW found{};
  const HANDLE search = ::FindFirstFileW(file.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  ::FindClose(search);
  return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 &&
         IsReparseTagNameSurrogate(found.dwReserved0);
}

/// A link to a folder has to go before its name is taken; what it leads to stays.
bool removeFolderLink(const fs::path& file) {
  return isFolder(file) && isLink(file) && ::RemoveDirectoryW(file.c_str()) != 0;
}

bool isMissing(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

[[noreturn]] void fail(DWORD error, const fs::path& file) {
  // To open a folder as a file is answered like a file without permission.
  if (error == ERROR_ACCESS_DENIED && isFolder(file)) {
    throw RuntimeError(ErrorNumber::pathFileAccess, textOf(file) + " (a folder)");
  }
  throw runtimeErrorFrom(std::error_code(static_cast<int>(error), std::system_category()), file);
}

/// Repeats `step`, which returns an error code, for a second while somebody holds `file` open: virus scanners
/// and search indexes do so for a moment after it has been written. Another error, or this one still, is
/// raised.
template <typename Step>
void retryWhileHeld(Step step, const fs::path& file) {
  using namespace std::chrono_literals;
  const auto until = std::chrono::steady_clock::now() + 1s;
  for (;;) {
    const DWORD error = step();
    if (error == ERROR_SUCCESS) return;
    const bool mayPass = error == ERROR_SHARING_VIOLATION || error == ERROR_USER_MAPPED_FILE ||
                         (error == ERROR_ACCESS_DENIED && !isFolder(file));
    if (!mayPass || std::chrono::steady_clock::now() >= until) fail(error, file);
    std::this_thread::sleep_for(10ms);
  }
}

/// An open file that is closed on every way out.
class Handle {
 public:
  Handle(const fs::path& file, DWORD access, DWORD disposition,
         DWORD shared = FILE_SHARE_READ | FILE_SHARE_DELETE, DWORD flags = FILE_ATTRIBUTE_NORMAL)
      : file_(file),
        handle_(::CreateFileW(file.c_str(), access, shared, nullptr, disposition, flags, nullptr)) {
    if (handle_ == INVALID_HANDLE_VALUE) fail(::GetLastError(), file_);
  }
  ~Handle() {
    if (handle_ != INVALID_HANDLE_VALUE) ::CloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  HANDLE get() const { return handle_; }
  HANDLE release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

  void sync() const {
    if (::FlushFileBuffers(handle_) == 0) fail(::GetLastError(), file_);
  }

 private:
  const fs::path& file_;
  HANDLE handle_;
};

constexpr DWORD largestStep = 1U << 30;

std::wstring wide(std::string_view text) {
  return pathOf(text).wstring();
}

/// A registry key open for reading; null where it cannot be opened.
class RegistryKey {
 public:
  explicit RegistryKey(std::string_view key) {
    if (::RegOpenKeyExW(HKEY_LOCAL_MACHINE, wide(key).c_str(), 0, KEY_READ, &key_) != ERROR_SUCCESS)
      key_ = nullptr;
  }
  ~RegistryKey() {
    if (key_ != nullptr) ::RegCloseKey(key_);
  }
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  HKEY get() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

std::string asHexadecimal(DWORD number) {
  std::ostringstream text;
  text << "&h" << std::hex << std::uppercase << number;
  return text.str();
}

}  // namespace

FileStamp stampOf(const fs::path& file) {
  std::error_code error;
  if (!fs::exists(file, error) && !error) return {};
  const Handle handle(file, FILE_READ_ATTRIBUTES, OPEN_EXISTING,
                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, FILE_FLAG_BACKUP_SEMANTICS);
  BY_HANDLE_FILE_INFORMATION known{};
  if (::GetFileInformationByHandle(handle.get(), &known) == 0) fail(::GetLastError(), file);
  const auto joined = [](DWORD high, DWORD low) { return (static_cast<std::uint64_t>(high) << 32U) | low; };
  return {known.dwVolumeSerialNumber, joined(known.nFileIndexHigh, known.nFileIndexLow),
          joined(known.nFileSizeHigh, known.nFileSizeLow), fs::last_write_time(file)};
}

InputFile::InputFile(const fs::path& file) : file_(file), handle_(-1) {
  Handle handle(file, GENERIC_READ, OPEN_EXISTING);
  if (::GetFileType(handle.get()) != FILE_TYPE_DISK) throw notAFile(file);
  handle_ = reinterpret_cast<std::intptr_t>(handle.release());
}

InputFile::~InputFile() {
  if (handle_ != -1) ::CloseHandle(reinterpret_cast<HANDLE>(handle_));
}

std::size_t InputFile::size() const {
  LARGE_INTEGER length;
  if (::GetFileSizeEx(reinterpret_cast<HANDLE>(handle_), &length) == 0) fail(::GetLastError(), file_);
  return static_cast<std::size_t>(length.QuadPart);
}

std::size_t InputFile::read(char* to, std::size_t size) {
  const auto wanted = static_cast<DWORD>(std::min<std::size_t>(size, largestStep));
  DWORD step = 0;
  if (::ReadFile(reinterpret_cast<HANDLE>(handle_), to, wanted, &step, nullptr) == 0)
    fail(::GetLastError(), file_);
  return step;
}

// The folders of a user are closed to others here, so that both kinds of access are the usual one.
void writeDurably(const fs::path& file, std::string_view contents, Access) {
  removeDurably(file);
  Handle handle(file, GENERIC_WRITE, CREATE_NEW);
  try {
    while (!contents.empty()) {
      const auto wanted = static_cast<DWORD>(std::min<std::size_t>(contents.size(), largestStep));
      DWORD step = 0;
      if (::WriteFile(handle.get(), contents.data(), wanted, &step, nullptr) == 0)
        fail(::GetLastError(), file);
      contents.remove_prefix(step);
    }
    handle.sync();
  } catch (const RuntimeError&) {
    ::CloseHandle(handle.release());
    std::error_code ignored;
    fs::remove(file, ignored);
    throw;
  }
}

// The file system keeps the order in which names change, and takeName() writes through.
void syncFolder(const fs::path&) {}

void takeName(const fs::path& from, const fs::path& to) {
  retryWhileHeld(
      [&] {
        if (::MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
          return DWORD{ERROR_SUCCESS};
        const DWORD error = ::GetLastError();
        return error == ERROR_ACCESS_DENIED && removeFolderLink(to) ? DWORD{ERROR_SHARING_VIOLATION} : error;
      },
      to);
}

void checkReplaceable(const fs::path& file) {
  const DWORD attributes = ::GetFileAttributesW(file.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    if (const DWORD error = ::GetLastError(); !isMissing(error)) fail(error, file);
    return;
  }
  const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (isFolder && isLink(file)) return;
  if (isFolder || (attributes & FILE_ATTRIBUTE_READONLY) != 0) fail(ERROR_ACCESS_DENIED, file);
  // Somebody may have the file open so that it keeps its name.
  retryWhileHeld(
      [&file] {
        const HANDLE handle =
            ::CreateFileW(file.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                          nullptr, OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
        if (handle == INVALID_HANDLE_VALUE) return ::GetLastError();
        ::CloseHandle(handle);
        return DWORD{ERROR_SUCCESS};
      },
      file);
}

void removeDurably(const fs::path& file) {
  retryWhileHeld(
      [&file] {
        if (::DeleteFileW(file.c_str()) != 0) return DWORD{ERROR_SUCCESS};
        const DWORD error = ::GetLastError();
        return isMissing(error) || removeFolderLink(file) ? DWORD{ERROR_SUCCESS} : error;
      },
      file);
}

FileLock::FileLock(const fs::path& lockFile, Wait wait) : file_(lockFile) {
  // Everybody may open the lock file; only one may hold the lock on it.
  Handle handle(lockFile, GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS, FILE_SHARE_READ | FILE_SHARE_WRITE,
                FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT);
  if (::GetFileType(handle.get()) != FILE_TYPE_DISK || isLink(lockFile)) throw notAFile(lockFile);
  using namespace std::chrono_literals;
  const auto until = std::chrono::steady_clock::now() + (wait == Wait::yes ? 2s : 0s);
  OVERLAPPED place{};
  while (::LockFileEx(handle.get(), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0, &place) ==
         0) {
    if (const DWORD error = ::GetLastError(); error != ERROR_LOCK_VIOLATION) fail(error, lockFile);
    if (std::chrono::steady_clock::now() >= until) throw LockedByAnother(lockFile);
    std::this_thread::sleep_for(10ms);
  }
  handle_ = reinterpret_cast<std::intptr_t>(handle.release());
}

FileLock::~FileLock() {
  if (handle_ == -1) return;
  ::CloseHandle(reinterpret_cast<HANDLE>(handle_));
  // Fails, as it should, where another one has the file open and waits for it.
  ::DeleteFileW(file_.c_str());
}

fs::path userDataFolder() {
  const wchar_t* data = ::_wgetenv(L"LOCALAPPDATA");
  return fs::path(data != nullptr ? data : L".") / L"tallywick";
}

fs::path programFile() {
  std::wstring name(32768, L'\0');
  name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
  if (name.empty()) throw RuntimeError(ErrorNumber::fileNotFound, "the program's own file");
  return name;
}

// The arguments of main() are in the code page, which lacks most letters.
std::vector<std::string> commandLine(int, char**) {
  int count = 0;
  wchar_t** const words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  if (words == nullptr) fail(::GetLastError(), "command line");
  std::vector<std::string> texts;
  for (int i = 0; i < count; ++i) texts.push_back(textOf(fs::path(words[i])));
  ::LocalFree(words);
  return texts;
}

std::string environment(const char* name) {
  const wchar_t* value = ::_wgetenv(wide(name).c_str());
  return value != nullptr ? textOf(fs::path(value)) : "";
}

bool canRun(const fs::path& program) {
  DWORD kind = 0;
  return ::GetBinaryTypeW(program.c_str(), &kind) != 0;
}

void startProgram(const fs::path& program, const fs::path& argument, const fs::path& workingFolder) {
  std::wstring command = L"\"" + program.wstring() + L"\"";
  if (!argument.empty()) {
    command += L" \"" + argument.wstring();
    // A back slash before the closing quote would make it a part of the argument.
    if (command.ends_with(L'\\')) command += L'\\';
    command += L'"';
  }
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  // It gets none of this program's output, which somebody may wait for the end of, and no console opens for
  // it.
  startup.dwFlags = STARTF_USESTDHANDLES;
  PROCESS_INFORMATION process{};
  if (::CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                       workingFolder.c_str(), &startup, &process) == 0) {
    const std::error_code error(static_cast<int>(::GetLastError()), std::system_category());
    throw RuntimeError(ErrorNumber::fileNotFound,
                       join(textOf(program), " cannot be started (", error.message(), ")"));
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
}

bool saysRefused(long error) {
  return error == WSAECONNREFUSED;
}

void joinConsole() {
  // Handles that lead somewhere were given on purpose.
  if (::GetStdHandle(STD_OUTPUT_HANDLE) != nullptr || ::AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
  for (std::FILE* stream : {stdout, stderr}) {
    if (std::freopen("CONOUT$", "w", stream) == nullptr) return;
  }
}

bool isTerminalBehindErrors() {
  DWORD mode = 0;
  return ::GetConsoleMode(::GetStdHandle(STD_ERROR_HANDLE), &mode) != 0;
}

// There is no such limit here.
void reportSizeLimit() {}

std::string registryValue(std::string_view key, std::string_view value) {
  const RegistryKey opened(key);
  if (opened.get() == nullptr) return {};
  const std::wstring name = wide(value);
  DWORD bytes = 0;
  DWORD type = REG_NONE;
  if (::RegQueryValueExW(opened.get(), name.c_str(), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS) {
    return {};
  }
  // Room for a double word in any case, and for half a letter at the end.
  std::wstring buffer(bytes / sizeof(wchar_t) + 2, L'\0');
  bytes = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
  if (::RegQueryValueExW(opened.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()),
                         &bytes) != ERROR_SUCCESS) {
    return {};
  }
  if (type == REG_DWORD) {
    DWORD number = 0;
    std::memcpy(&number, buffer.data(), sizeof number);
    return asHexadecimal(number);
  }
  if (type != REG_SZ && type != REG_EXPAND_SZ) return {};
  buffer.resize(bytes / sizeof(wchar_t));
  return textOf(fs::path(buffer.substr(0, buffer.find(L'\0'))));
}

}  // namespace tallywick::os
