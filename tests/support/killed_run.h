// SPDX-License-Identifier: GPL-3.0-or-later
// Runs an action in a process of its own that is killed at a system call of the test's choice: what a power
// cut or a kill leaves behind. Linux only.
#pragma once

#include <csignal>
#include <cstdio>
#include <functional>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tallywick::test {

/// `untraced` where the system does not let a test trace its own child.
enum class RunEnd { killed, finished, failed, untraced };

/// Kills the run at the entry of its system call number `call`, counted from 1, before the call does
/// anything. `finished` once `action` makes fewer calls than that; `failed` where it threw.
inline RunEnd runKilledAt(int call, const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(99);
    ::raise(SIGSTOP);
    try {
      action();
    } catch (...) {
      ::_exit(1);
    }
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  if (WIFEXITED(status)) return RunEnd::untraced;
  ::ptrace(PTRACE_SETOPTIONS, child, nullptr, PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD);
  // A system call stops its process twice, at its entry and at its end.
  for (int stop = 1; stop < 2 * call; ++stop) {
    ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    ::waitpid(child, &status, 0);
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
      // A line for those who count: a test kills at one call after the other until the run finishes.
      std::printf("calls to be killed at: %d\n", call - 1);
      return RunEnd::finished;
    }
    if (WIFEXITED(status)) return RunEnd::failed;
    if (WIFSIGNALED(status)) return RunEnd::failed;
  }
  ::kill(child, SIGKILL);
  ::waitpid(child, &status, 0);
  return RunEnd::killed;
}

}  // namespace tallywick::test
