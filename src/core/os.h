// SPDX-License-Identifier: GPL-3.0-or-later
// What the operating system is asked for. One implementation file a platform, and os.cpp with what is the
// same on all; nothing else in the program knows which platform it runs on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tallywick::os {

/// A file's bytes, read at once.
class FileBytes {
 public:
  FileBytes() = default;
  FileBytes(std::unique_ptr<char[]> bytes, std::size_t size) : bytes_(std::move(bytes)), size_(size) {}
  std::string_view view() const { return {bytes_.get(), size_}; }

 private:
  std::unique_ptr<char[]> bytes_;
  std::size_t size_ = 0;
};

/// Reads a whole file. Raises a RuntimeError (53, 70, 75, 76 …); a folder, a pipe or a device is error 75 and
/// never waited for.
FileBytes readFile(const std::filesystem::path& file);

/// What changes with a file's contents: two equal stamps of one name belong to the same contents, once the
/// clock has moved on since its last write.
struct FileStamp {
  std::uint64_t volume = 0;
  std::uint64_t file = 0;
  std::uint64_t size = 0;
  std::filesystem::file_time_type written = std::filesystem::file_time_type::min();

  bool operator==(const FileStamp&) const = default;
};

/// A missing file has the stamp FileStamp(). Raises a RuntimeError where the platform does not say.
FileStamp stampOf(const std::filesystem::path& file);

/// A file that is read from its start in pieces.
class InputFile {
 public:
  /// Raises a RuntimeError like readFile().
  explicit InputFile(const std::filesystem::path& file);
  ~InputFile();
  InputFile(InputFile&& other) noexcept;
  InputFile& operator=(InputFile&& other) noexcept;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  std::size_t size() const;
  /// Reads at most `size` bytes and returns how many: at least one, but 0 at the end.
  std::size_t read(char* to, std::size_t size);

 private:
  std::filesystem::path file_;
  std::intptr_t handle_;
};

/// Who may read and write a new file.
enum class Access : std::uint8_t {
  usual,     ///< what the user's own settings give to new files
  ownerOnly  ///< where the platform's user folders are not the owner's alone anyway
};

/// Creates `file` anew, writes `contents` and waits until they are on the disk. What has the name is removed
/// first, a link itself and not what it leads to. Every step is checked: on a failure the file is removed and
/// a RuntimeError (61, 70, 75 …) raised.
void writeDurably(const std::filesystem::path& file, std::string_view contents,
                  Access access = Access::usual);

/// Waits until the names of the files in `folder` are on the disk.
void syncFolder(const std::filesystem::path& folder);

/// Gives `from` the name `to` in one step and waits until the folder knows it. An old file `to` is replaced
/// with its rights; of a link `to` the link itself. Where `to` is a folder, a pipe or a device it is
/// error 75.
void takeName(const std::filesystem::path& from, const std::filesystem::path& to);

/// Raises a RuntimeError where takeName() could not take over from `file`: a folder, a pipe, a device, or a
/// file that may not be changed. A missing file and a link can be replaced.
void checkReplaceable(const std::filesystem::path& file);

/// Removes `file` where it exists and waits until the folder knows it. A missing file is no error.
void removeDurably(const std::filesystem::path& file);

/// An exclusive lock on a lock file, released when it goes or when its holder dies. The lock file goes with
/// it.
class FileLock {
 public:
  enum class Wait { no, yes };
  /// Takes the lock, creating the lock file where there is none. Raises LockedByAnother where another program
  /// holds it: at once with `Wait::no`, after two seconds with `Wait::yes`. Error 75 where the lock file's
  /// name belongs to a link or to something else that is no file.
  FileLock(const std::filesystem::path& lockFile, Wait wait);
  ~FileLock();
  FileLock(FileLock&& other) noexcept;
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;
  FileLock& operator=(FileLock&&) = delete;

 private:
  std::filesystem::path file_;
  std::intptr_t handle_;
};

/// The platform's folder for this user's data of the program, for example ~/.local/share/tallywick.
std::filesystem::path userDataFolder();

/// The file of the running program itself. Raises RuntimeError 53 where the platform does not say it.
std::filesystem::path programFile();

/// The words of the command line as UTF-8, the program's name first. The arguments are those of main().
std::vector<std::string> commandLine(int argumentCount, char** arguments);

/// An environment variable's value as UTF-8; empty where it is not set.
std::string environment(const char* name);

/// Whether the platform can start `program` as it is.
bool canRun(const std::filesystem::path& program);

/// Starts `program` in `workingFolder` and does not wait for it. Its only argument is a path; an empty one is
/// none. Raises RuntimeError 53 that says why where it cannot be started.
void startProgram(const std::filesystem::path& program, const std::filesystem::path& argument,
                  const std::filesystem::path& workingFolder);

/// Whether `error`, an error number of the platform's sockets, says that nobody listens where a connection
/// was asked for.
bool saysRefused(long error);

/// Lets a program with windows write to the console that it was started from; where every program does so,
/// nothing.
void joinConsole();

/// Whether standard error is a terminal, where somebody reads it.
bool isTerminalBehindErrors();

/// From now on a write beyond the file size that this process is allowed is error 61. It ends the process
/// otherwise. Each program calls it first.
void reportSizeLimit();

/// A value below the machine-wide registry key: a text cut at its first null, a double word as "&h" and its
/// hexadecimal digits. Empty where there is none, and on platforms without a registry.
std::string registryValue(std::string_view key, std::string_view value);

}  // namespace tallywick::os
