// A change of several files is made as a whole or not at all, and a broken one is finished or dropped.
#include "core/file_commit.h"

#include "core/runtime_error.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tallywick::test {
namespace {

namespace fs = std::filesystem;

class FileCommits : public testing::Test {
 protected:
  void put(const std::string& file, std::string_view text) {
    scratch.write("QzrNumbers/QZR6PWR/" + file, text);
  }

  /// The folder's files with their texts, but for the lock.
  std::string files() {
    std::string text;
    for (const auto& [name, contents] : scratch.snapshot()) {
      text += name.substr(name.rfind('/') + 1) + "=" + contents + " ";
    }
    return text;
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
    EXPECT_EQ(scratch.read("QzrNumbers/QZR6PWR/qzr6pwr1.ply"), "old");
    change.commit();
  }
  EXPECT_EQ(files(), "Other=made qzr6pwr1.ply=new ");
}

TEST_F(FileCommits, AReplacedFileKeepsItsRights) {
  put("A", "old");
  const fs::perms mine = fs::perms::owner_read | fs::perms::owner_write;
  fs::permissions(folder / "A", mine);
  replaceFile(folder / "A", "new");
  EXPECT_EQ(fs::status(folder / "A").permissions(), mine);
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

TEST_F(FileCommits, AFailureAfterwardsIsFinishedByTheNextOneWhoLocksTheFolder) {
  put("A.tw~", "new");
  put("B.tw~", "new");
  put(std::string(journalName), "tallywick-journal 1\nA\nB\n/\n");
  fs::create_directories(folder / "B" / "in the way");
  EXPECT_THROW(lockFolder(folder), RuntimeError) << "it cannot be finished yet";
  fs::remove_all(folder / "B");
  lockFolder(folder);
  EXPECT_EQ(files(), "A=new B=new ");
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

TEST_F(FileCommits, RecoveryFollowsAWholeJournalAndDropsABrokenOne) {
  struct Row {
    const char* journal;
    const char* files;
  };
  for (const Row& row :
       {Row{"tallywick-journal 1\nA\nB\n/\n", "A=new B=new "},
        Row{"tallywick-journal 1\nA\n", "A=old B=old "}, Row{"tallywick-journal 1\n", "A=old B=old "},
        Row{"", "A=old B=old "}, Row{nullptr, "A=old B=old "}}) {
    for (const char* name : {"A", "B"}) {
      put(name, "old");
      put(std::string(name) + ".tw~", "new");
    }
    if (row.journal != nullptr) put(std::string(journalName), row.journal);
    recoverFolder(folder);
    EXPECT_EQ(files(), row.files);
  }
}

TEST_F(FileCommits, OneAfterTheOtherHoldTheLockAndLeaveNoLockFile) {
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
}

TEST_F(FileCommits, RecoveryOfAFolderWithNothingToFinishWritesNothing) {
  recoverFolder(folder);
  EXPECT_FALSE(fs::exists(folder / lockName));
  recoverFolder(folder / "missing");
}

}  // namespace
}  // namespace tallywick::test
