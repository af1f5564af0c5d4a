// SPDX-License-Identifier: GPL-3.0-or-later
// The platform file of Linux.
#include "core/file_names.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace tallywick::os {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(int error, const fs::path& file) {
  // What a socket answers to being opened.
  if (error == ENXIO) throw notAFile(file);
  // A used-up quota is a full disk to the one who meets it.
  if (error == EDQUOT) error = ENOSPC;
  throw runtimeErrorFrom(std::error_code(error, std::generic_category()), file);
}

/// An open file that is closed on every way out.
class Descriptor {
 public:
  Descriptor(const fs::path& file, int flags, mode_t rights = 0666)
      : file_(file), number_(::open(file.c_str(), flags | O_CLOEXEC, rights)) {
    if (number_ < 0) fail(errno, file_);
  }
  /// Takes over an open one.
  Descriptor(int number, const fs::path& file) : file_(file), number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int number() const { return number_; }
  int release() { return std::exchange(number_, -1); }

  void sync() const {
    if (::fsync(number_) != 0) fail(errno, file_);
  }

  void close() {
    const int closing = std::exchange(number_, -1);
    if (::close(closing) != 0) fail(errno, file_);
  }

 private:
  const fs::path& file_;
  int number_;
};

void syncFolderOf(const fs::path& file) {
  syncFolder(file.has_parent_path() ? file.parent_path() : fs::path("."));
}

struct stat statusOf(int descriptor, const fs::path& file) {
  struct stat status {};
  if (::fstat(descriptor, &status) != 0) fail(errno, file);
  return status;
}

/// Raises an error where `file` is no plain file.
void requireFile(const struct stat& status, const fs::path& file) {
  if (S_ISDIR(status.st_mode)) fail(EISDIR, file);
  if (!S_ISREG(status.st_mode)) throw notAFile(file);
}

/// A pipe in the place of a file is refused rather than waited for.
constexpr int readingFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY;

/// Creates a file that has no name yet, or takes away what has its name and creates it then.
Descriptor createAnew(const fs::path& file, Access access) {
  constexpr int flags = O_WRONLY | O_CREAT | O_EXCL;
  const mode_t rights = access == Access::ownerOnly ? 0600 : 0666;
  const int number = ::open(file.c_str(), flags | O_CLOEXEC, rights);
  if (number >= 0) return {number, file};
  if (errno != EEXIST) fail(errno, file);
  if (::unlink(file.c_str()) != 0 && errno != ENOENT) fail(errno, file);
  return {file, flags, rights};
}

void waitForLock(const Descriptor& lock, const fs::path& lockFile,
                 std::chrono::steady_clock::time_point until) {
  while (::flock(lock.number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EINTR) continue;
    if (errno != EWOULDBLOCK) fail(errno, lockFile);
    if (std::chrono::steady_clock::now() >= until) throw LockedByAnother(lockFile);
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

}  // namespace

FileStamp stampOf(const fs::path& file) {
  struct stat status {};
  if (::stat(file.c_str(), &status) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) return {};
    fail(errno, file);
  }
  const auto written =
      std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
  return {status.st_dev, status.st_ino, static_cast<std::uint64_t>(status.st_size),
          std::chrono::file_clock::from_sys(std::chrono::sys_time<std::chrono::nanoseconds>(written))};
}

InputFile::InputFile(const fs::path& file) : file_(file), handle_(-1) {
  Descriptor descriptor(file, readingFlags);
  requireFile(statusOf(descriptor.number(), file), file);
  handle_ = descriptor.release();
}

InputFile::~InputFile() {
  if (handle_ >= 0) ::close(static_cast<int>(handle_));
}

std::size_t InputFile::size() const {
  return static_cast<std::size_t>(statusOf(static_cast<int>(handle_), file_).st_size);
}

std::size_t InputFile::read(char* to, std::size_t size) {
  for (;;) {
    const ssize_t step = ::read(static_cast<int>(handle_), to, size);
    if (step >= 0) return static_cast<std::size_t>(step);
    if (errno != EINTR) fail(errno, file_);
  }
}

void writeDurably(const fs::path& file, std::string_view contents, Access access) {
  Descriptor descriptor = createAnew(file, access);
  try {
    while (!contents.empty()) {
      const ssize_t step = ::write(descriptor.number(), contents.data(), contents.size());
      if (step < 0 && errno == EINTR) continue;
      if (step < 0) fail(errno, file);
      contents.remove_prefix(static_cast<std::size_t>(step));
    }
    descriptor.sync();
    descriptor.close();
  } catch (const RuntimeError&) {
    std::error_code ignored;
    fs::remove(file, ignored);
    throw;
  }
}

void syncFolder(const fs::path& folder) {
  const Descriptor descriptor(folder, O_RDONLY | O_DIRECTORY);
  // Some file systems cannot sync a folder and say so; there the rename itself is all there is.
  if (::fsync(descriptor.number()) != 0 && errno != EINVAL && errno != ENOTSUP) fail(errno, folder);
}

void takeName(const fs::path& from, const fs::path& to) {
  struct stat old {};
  if (::lstat(to.c_str(), &old) == 0 && !S_ISLNK(old.st_mode)) requireFile(old, to);
  if (::rename(from.c_str(), to.c_str()) != 0) fail(errno, to);
  syncFolderOf(to);
}

void checkReplaceable(const fs::path& file) {
  struct stat status {};
  if (::lstat(file.c_str(), &status) != 0) {
    if (errno == ENOENT) return;
    fail(errno, file);
  }
  if (S_ISLNK(status.st_mode)) return;
  requireFile(status, file);
  // A file without the right to write can be replaced all the same; one that is locked against changes
  // cannot.
  if (::access(file.c_str(), W_OK) != 0 && (errno == EPERM || errno == EROFS)) fail(errno, file);
}

void removeDurably(const fs::path& file) {
  if (::unlink(file.c_str()) != 0) {
    if (errno == ENOENT) return;
    fail(errno, file);
  }
  syncFolderOf(file);
}

FileLock::FileLock(const fs::path& lockFile, Wait wait) : file_(lockFile) {
  using namespace std::chrono_literals;
  const auto until = std::chrono::steady_clock::now() + (wait == Wait::yes ? 2s : 0s);
  for (;;) {
    Descriptor lock(lockFile, O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK);
    requireFile(statusOf(lock.number(), lockFile), lockFile);
    waitForLock(lock, lockFile, until);
    // The one who was waited for has removed the file: then a lock on it keeps nobody out.
    if (statusOf(lock.number(), lockFile).st_nlink == 0) continue;
    handle_ = lock.release();
    return;
  }
}

FileLock::~FileLock() {
  if (handle_ < 0) return;
  // Still locked: who waits for this file sees that it is gone, and takes the next one.
  ::unlink(file_.c_str());
  ::close(static_cast<int>(handle_));
}

fs::path userDataFolder() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') {
    return fs::path(data) / "tallywick";
  }
  const char* home = std::getenv("HOME");
  return fs::path(home != nullptr ? home : ".") / ".local" / "share" / "tallywick";
}

fs::path programFile() {
  const fs::path link = "/proc/self/exe";
  std::error_code error;
  fs::path file = fs::read_symlink(link, error);
  // Without it a program installed beside this one would be looked for in the working folder.
  if (error) throw RuntimeError(ErrorNumber::fileNotFound, join(textOf(link), " (", error.message(), ")"));
  return file;
}

std::vector<std::string> commandLine(int argumentCount, char** arguments) {
  return {arguments, arguments + argumentCount};
}

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

bool canRun(const fs::path& program) {
  std::error_code ignored;
  if (!fs::is_regular_file(program, ignored) || ::access(program.c_str(), X_OK) != 0) return false;
  // On a file system without rights of its own every file may run, another platform's programs too.
  std::array<char, 4> head{};
  try {
    InputFile(program).read(head.data(), head.size());
  } catch (const RuntimeError&) {
    return false;
  }
  const std::string_view begins(head.data(), head.size());
  return begins ==
             "\x7F"
             "ELF" ||
         begins.starts_with("#!");
}

namespace {

/// Writes the error of a step in the child to `report`.
[[noreturn]] void giveUp(int report) {
  const int error = errno;
  static_cast<void>(::write(report, &error, sizeof error));
  ::_exit(127);
}

/// In the child: becomes the program.
[[noreturn]] void become(const char* program, const char* argument, const char* workingFolder, int report) {
  // What this process ignores its children would ignore too.
  std::signal(SIGXFSZ, SIG_DFL);
  if (::chdir(workingFolder) == 0) ::execl(program, program, argument, static_cast<char*>(nullptr));
  giveUp(report);
}

[[noreturn]] void failToStart(const fs::path& program, int error) {
  throw RuntimeError(ErrorNumber::fileNotFound,
                     join(textOf(program), " cannot be started (", std::strerror(error), ")"));
}

}  // namespace

void startProgram(const fs::path& program, const fs::path& argument, const fs::path& workingFolder) {
  std::array<int, 2> report{};
  if (::pipe2(report.data(), O_CLOEXEC) != 0) failToStart(program, errno);
  // Started by a child that ends at once, so that nobody has to wait for the program itself.
  const pid_t child = ::fork();
  if (child == 0) {
    const pid_t grandchild = ::fork();
    if (grandchild < 0) giveUp(report[1]);
    if (grandchild > 0) ::_exit(0);
    become(program.c_str(), argument.empty() ? nullptr : argument.c_str(), workingFolder.c_str(), report[1]);
  }
  int error = child < 0 ? errno : 0;
  ::close(report[1]);
  // The pipe closes without a word where the program runs.
  while (child > 0 && ::read(report[0], &error, sizeof error) < 0 && errno == EINTR) {
  }
  ::close(report[0]);
  while (child > 0 && ::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }
  if (error != 0) failToStart(program, error);
}

bool saysRefused(long error) {
  return error == ECONNREFUSED;
}

void joinConsole() {}

bool isTerminalBehindErrors() {
  return ::isatty(STDERR_FILENO) == 1;
}

void reportSizeLimit() {
  std::signal(SIGXFSZ, SIG_IGN);
}

std::string registryValue(std::string_view, std::string_view) {
  return {};
}

}  // namespace tallywick::os
