// SPDX-License-Identifier: GPL-3.0-or-later
// A change of several files is made as a whole or not at all, and a broken one is finished or dropped.
#include "core/file_commit.h"

#include "core/clock.h"
#include "core/dated_copies.h"
#include "core/journal.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/work_files.h"
#include "support/raised.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>
#include <regex>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace tallywick::test {
namespace {

namespace fs = std::filesystem;

class FileCommits : public testing::Test {
 protected:
  void put(const std::string& file, std::string_view text) {
    scratch.write("QzrNumbers/QZR6PWR/" + file, text);
  }

  /// The folder's files with their texts, but for the lock, and with their dates taken out.
  std::string files() {
    std::string text;
    for (const auto& [name, contents] : scratch.snapshot()) {
      text += name.substr(name.rfind('/') + 1) + "=" + contents + " ";
    }
    return std::regex_replace(text, std::regex("[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{6}"), "DATE");
  }

  ScratchFolder scratch;
  fs::path folder = scratch.root() / "QzrNumbers" / "QZR6PWR";
};

TEST_F(FileCommits, TakesOverAllFilesInWhateverCaseTheyStand) {
  put("qzr6pwr1.ply", "old");
  {
    FileCommit change(folder);
    change.stage("QZR6PWR1.Ply", "new");
    change.stage("Other", "made");
    put("GOES", "");
    for (const char* name : {"Goes", "Missing"}) change.stageRemoval(name);
    EXPECT_EQ(scratch.read("QzrNumbers/QZR6PWR/qzr6pwr1.ply"), "old");
    change.commit();
  }
  EXPECT_EQ(files(), "Other=made qzr6pwr1.ply=new ");
}

TEST_F(FileCommits, AFileThatIsHeldOpenOrReadOnlyStopsTheChangeBeforeItBegins) {
#ifndef _WIN32
  GTEST_SKIP() << "an open file can be replaced here";
#else
  const fs::path held = folder / L"B \u0395\u03bb \u65e5\u672c";
  const auto change = [&] {
    FileCommit both(folder);
    both.stage("A", "new");
    both.stage(textOf(held.filename()), "new");
    both.commit();
  };
  change();
  const std::string before = files();
  for (const DWORD shared : {0UL, 0UL + FILE_SHARE_READ, 0UL + FILE_SHARE_READ + FILE_SHARE_WRITE}) {
    const HANDLE holder =
        ::CreateFileW(held.c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_EQ(raisedBy(change).number, 70) << shared;
    ::CloseHandle(holder);
    EXPECT_EQ(files(), before) << shared;
  }
  ::SetFileAttributesW(held.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(raisedBy(change).number, 70);
  ::SetFileAttributesW(held.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(files(), before);
  EXPECT_EQ(raisedBy(change).number, 0);
#endif
}

TEST_F(FileCommits, AReplacedFileHasTheRightsOfANewOneAndALinkIsReplacedItself) {
#ifdef _WIN32
  GTEST_SKIP() << "needs rights and links";
#else
  const mode_t mask = ::umask(027);
  put("A", "old");
  fs::permissions(folder / "A", fs::perms::all);
  replaceFile(folder / "A", "new");
  EXPECT_EQ(fs::status(folder / "A").permissions(), fs::perms(0640));
  scratch.write("target", "kept");
  for (const char* link : {"B", "B.tw~"}) fs::create_symlink(scratch.root() / "target", folder / link);
  replaceFile(folder / "B", "secret", os::Access::ownerOnly);
  ::umask(mask);
  EXPECT_EQ(fs::symlink_status(folder / "B"), fs::file_status(fs::file_type::regular, fs::perms(0600)));
  EXPECT_EQ(scratch.read("target"), "kept");
#endif
}

TEST_F(FileCommits, AFullSizeLimitIsError61AndLeavesTheFile) {
#ifdef _WIN32
  GTEST_SKIP() << "needs limits and fork";
#else
  put("A", "old");
  const pid_t child = ::fork();
  if (child == 0) {
    const struct rlimit limit = {4, 4};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    os::reportSizeLimit();
    try {
      replaceFile(folder / "A", "longer than that");
    } catch (const RuntimeError& error) {
      ::_exit(error.number());
    }
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 61) << status;
  EXPECT_EQ(files(), "A=old ");
#endif
}

TEST_F(FileCommits, WhatIsNotCommittedLeavesNoTrace) {
  put("A", "old");
  FileCommit(folder).stage("A", "new");
  EXPECT_EQ(files(), "A=old ");
}

TEST_F(FileCommits, WhatCannotBeReplacedStopsTheChangeBeforeItBegins) {
  put("A", "old");
  fs::create_directories(folder / "B" / "in the way");
  {
    FileCommit change(folder);
    change.stage("A", "new");
    change.stage("B", "new");
    EXPECT_THROW(change.commit(), RuntimeError);
  }
  lockFolder(folder);
  fs::remove_all(folder / "B");
  EXPECT_EQ(files(), "A=old ");
}

TEST_F(FileCommits, AStagedFileThatIsGoneStopsTheChange) {
  put("A", "old");
  FileCommit change(folder);
  change.stage("A", "new");
  change.stage("B", "new");
  fs::remove(folder / "B.tw~");
  EXPECT_THROW(change.commit(), RuntimeError);
  EXPECT_EQ(scratch.read("QzrNumbers/QZR6PWR/A"), "old");
}

TEST_F(FileCommits, RecoveryFollowsAJournalOfPlainNamesAndSetsEveryOtherAside) {
  const std::string isOld = "3 1a0fad1921d08076";
  const std::string aside = "A=old A DATE=new B=old B DATE=new TALLYWICK not carried out DATE.JNL=";
  struct Row {
    const char* rule;
    std::string journal;
    std::string files;
  };
  for (const Row& row : {
           Row{"whole", join("tallywick-journal 2\n", isOld, " A\n", isOld, " B\n/\n"), "A=new B=new "},
           Row{"the first release's", "tallywick-journal 1\nA\nB\n/\n", "A=new B=new "},
           Row{"B changed since", join("tallywick-journal 2\n", isOld, " A\n3 1f B\n/\n"),
               "A=new B=new B DATE=old "},
           Row{"B made since", join("tallywick-journal 2\n", isOld, " A\n- - B\n/\n"),
               "A=new B=new B DATE=old "},
           Row{"A goes", join("tallywick-journal 3\n", isOld, " B\nremove ", isOld, " A\n/\n"), "B=new "},
           Row{"A goes, changed since", "tallywick-journal 3\nremove 3 1f A\n/\n", "A DATE=old B=old "},
           Row{"torn", "tallywick-journal 1\nA\n", aside},
           Row{"torn inside a line", "tallywick-journal 2\nA\n/\n", aside},
           Row{"empty", "", aside},
           Row{"no size", join("tallywick-journal 2\n3x", isOld.substr(1), " A\n/\n"), aside},
           Row{"no fingerprint", join("tallywick-journal 2\n", isOld, "g A\n/\n"), aside},
           Row{"not plain", "tallywick-journal 1\nA\n../B\n/\n", aside},
           Row{"a name of its own", "tallywick-journal 2\n- - TALLYWICK.JNL\n/\n", aside},
           Row{"doubled", "tallywick-journal 2\n- - A\n- - a\n/\n", aside},
       }) {
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) fs::remove(entry);
    for (const char* name : {"A", "B"}) {
      put(name, "old");
      put(std::string(name) + ".tw~", "new");
    }
    put(std::string(journalName), row.journal);
    recoverFolder(folder);
    const bool isAside = row.files == aside;
    EXPECT_EQ(files(), isAside ? join(aside, row.journal, " ") : row.files) << row.rule;
    const bool isTold = row.files.find("DATE") != std::string::npos;
    EXPECT_EQ(takeRecoveryNotices().size(), isTold ? 1U : 0U) << row.rule;
  }
}

TEST_F(FileCommits, RecoveryFindsItsFilesInWhateverCaseTheyStand) {
  put("A", "old");
  put("a.TW~", "new");
  put("tallywick.jnl", "tallywick-journal 1\nA\n/\n");
  recoverFolder(folder);
  EXPECT_EQ(files(), "A=new ");
}

TEST_F(FileCommits, AChangeThatCannotBeCarriedOutIsSetAsideAsAWhole) {
  put("A", "old");
  put("A.tw~", "new");
  put("B.tw~", "new");
  put(std::string(journalName), "tallywick-journal 1\nA\nB\n/\n");
  fs::create_directories(folder / "B" / "in the way");
  lockFolder(folder);
  EXPECT_EQ(files(),
            "A=old A DATE=new B DATE=new "
            "TALLYWICK not carried out DATE.JNL=not carried out\ntallywick-journal 1\nA\nB\n/\n ");
  const std::vector<std::string> notices = takeRecoveryNotices();
  ASSERT_EQ(notices.size(), 1U);
  EXPECT_NE(notices[0].find("\"B 2"), std::string::npos) << notices[0];
  // Neither a folder in the place of a new file nor one in the journal's keeps anybody out.
  fs::create_directory(folder / "A.tw~");
  put(std::string(journalName), "tallywick-journal 1\nA\n/\n");
  lockFolder(folder);
  EXPECT_FALSE(fs::exists(folder / "A.tw~"));
  fs::create_directory(folder / journalName);
  lockFolder(folder);
  EXPECT_EQ(takeRecoveryNotices().size(), 2U);
}

TEST_F(FileCommits, APipeInThePlaceOfTheJournalKeepsNobodyOut) {
#ifdef _WIN32
  GTEST_SKIP() << "needs pipes in folders";
#else
  fs::create_directories(folder);
  ::mkfifo((folder / journalName).c_str(), 0666);
  lockFolder(folder);
  EXPECT_FALSE(fs::exists(fs::symlink_status(folder / journalName)));
  EXPECT_EQ(takeRecoveryNotices().size(), 1U);
#endif
}

TEST_F(FileCommits, OfDatedCopiesTheTwentyNewestStay) {
  const FixedClock clock("11-21-2026", "18:15:00");
  put("qzr6pwr1.PLY", "mine");
  for (const char* other :
       {"QZR6PWR1 2026-11-21.Ply", "QZR6PWR1 2026-11-21 181500 01.Ply", "QZR6PWR1 2026-11-21 181500.Sav",
        "QZR6PWR1 2026-nn-21 181500.Ply", "QZR6PWR12 2026-11-21 181500.Ply"}) {
    put(other, "no copy");
  }
  for (int i = 0; i < 22; ++i) {
    FileCommit change(folder);
    stageDatedCopy(change, "QZR6PWR1.Ply", clock);
    change.commit();
  }
  put("QZR6PWR1 2025-01-31 235959.Ply", "oldest");
  ASSERT_EQ(datedCopies(folder, "QZR6PWR1.Ply").size(), 23U);
  pruneDatedCopies(folder, "QZR6PWR1.Ply", "QZR6PWR1 2025-01-31 235959.Ply");
  const std::vector<DatedCopy> copies = datedCopies(folder, "QZR6PWR1.Ply");
  ASSERT_EQ(copies.size(), 20U);
  EXPECT_EQ(copies.front().name, "qzr6pwr1 2026-11-21 181500 22.PLY");
  EXPECT_EQ(copies[18].number, 4U);
  EXPECT_EQ(copies.back().name, "QZR6PWR1 2025-01-31 235959.Ply");
  EXPECT_EQ(scratch.snapshot().size(), 26U);
}

TEST_F(FileCommits, OneAfterTheOtherHoldTheLockAndLeaveNoLockFile) {
#ifdef _WIN32
  GTEST_SKIP() << "needs fork";
#else
  std::vector<pid_t> children;
  for (int i = 0; i < 4; ++i) {
    children.push_back(::fork());
    if (children.back() != 0) continue;
    for (int round = 0; round < 20; ++round) {
      const os::FileLock lock = lockFolder(folder);
      // Only one may be here; a second one would find the folder taken.
      const bool isAlone = ::mkdir((folder / "taken").c_str(), 0777) == 0;
      ::usleep(2000);
      if (!isAlone || ::rmdir((folder / "taken").c_str()) != 0) ::_exit(1);
    }
    ::_exit(0);
  }
  for (const pid_t child : children) {
    int status = 0;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0) << "two held the lock at once";
  }
  EXPECT_FALSE(fs::exists(folder / lockName));
#endif
}

TEST_F(FileCommits, RecoveryOfAFolderWithNothingToFinishWritesNothing) {
  recoverFolder(folder);
  EXPECT_FALSE(fs::exists(folder / lockName));
  recoverFolder(folder / "missing");
}

}  // namespace
}  // namespace tallywick::test
