// What the operating system is asked for. One implementation file a platform; nothing else in the program
// knows which platform it runs on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

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

/// Reads a whole file. Raises a RuntimeError (53, 70, 75, 76 …).
FileBytes readFile(const std::filesystem::path& file);

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

  /// Reads at most `size` bytes and tells how many; 0 at the end.
  std::size_t read(char* to, std::size_t size);

 private:
  std::filesystem::path file_;
  std::intptr_t handle_;
};

/// Creates or empties `file`, writes `contents` and waits until they are on the disk. Every step is checked:
/// on a failure the file is removed and a RuntimeError (61, 70, 75 …) raised.
void writeDurably(const std::filesystem::path& file, std::string_view contents);

/// Waits until the names of the files in `folder` are on the disk.
void syncFolder(const std::filesystem::path& folder);

/// Waits until what was written to `file` by others (the transfer library) is on the disk.
void syncFile(const std::filesystem::path& file);

/// Gives `from` the name `to` in one step, whether or not `to` stands, with the access rights of an old `to`,
/// and waits until the folder knows it.
void takeName(const std::filesystem::path& from, const std::filesystem::path& to);

/// Raises a RuntimeError where takeName() could not take over from `file`: a folder, or a file that may not
/// be changed. A missing file can be replaced.
void checkReplaceable(const std::filesystem::path& file);

/// Removes `file` where it stands and waits until the folder knows it. A missing file is no error.
void removeDurably(const std::filesystem::path& file);

/// An exclusive lock on a lock file, released when it goes or when its holder dies. The lock file goes with
/// it.
class FileLock {
 public:
  enum class Wait { no, yes };
  /// Takes the lock, creating the lock file where there is none. Raises LockedByAnother where another program
  /// holds it: at once with `Wait::no`, after two seconds with `Wait::yes`.
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

/// The file of the running program itself.
std::filesystem::path programFile();

/// Whether the platform can start `program` as it stands.
bool canRun(const std::filesystem::path& program);

/// Starts `program` with `arguments` in `workingFolder` and does not wait for it. Raises RuntimeError 53
/// where it cannot be started.
void startProgram(const std::filesystem::path& program, const std::string& argument,
                  const std::filesystem::path& workingFolder);

/// A value below the machine-wide registry key: a text cut at its first null, a double word as "&h" and its
/// hexadecimal digits. Empty where there is none, and on platforms without a registry.
std::string registryValue(std::string_view key, std::string_view value);

}  // namespace tallywick::os
