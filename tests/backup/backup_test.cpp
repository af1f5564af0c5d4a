// SPDX-License-Identifier: GPL-3.0-or-later
// Backups: what they contain, what a restore brings back, and what is refused.
#include "backup/backup.h"

#include "core/clock.h"
#include "core/journal.h"
#include "core/restored_folder.h"
#include "core/work_files.h"
#include "support/host.h"
#include "support/record_book.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zip.h>

namespace tallywick {
namespace {

namespace fs = std::filesystem;

class Backup : public testing::Test {
 protected:
  Backup() { test::writeRecordBook(scratch); }

  /// Moves the record book below a folder that has room for what is put beside it.
  void below() {
    fs::create_directory(holder);
    fs::rename(scratch.root(), book);
  }
  ~Backup() override { fs::remove_all(holder); }

  static std::map<std::string, std::string> filesOf(const fs::path& folder) {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      const std::string name = entry.path().lexically_relative(folder).generic_string();
      files[name] = entry.is_regular_file() ? std::string(os::readFile(entry.path()).view()) : "folder";
    }
    return files;
  }
  /// What `action` complains about.
  template <typename Action>
  static std::string complaintOf(Action action) {
    try {
      action();
      return "none";
    } catch (const std::exception& error) {
      return error.what();
    }
  }

  test::ScratchFolder scratch;
  FixedClock clock{"11-21-2026", "18:15:00"};
  fs::path holder = fs::path(scratch.root()) += "-holder";
  fs::path book = holder / "book";
  fs::path zip = holder / "book 2026-11-21 181500.zip";
};

TEST_F(Backup, BringsBackEveryByteAndKeepsWhatWasThere) {
  below();
  std::ofstream(book / "QzrNumbers/QZR6PWR/QZR6PWR7.Ply");
  std::ofstream(holder / "elsewhere") << "linked";
  test::linkOrCopy(holder / "elsewhere", book / "notes.txt");
  const auto before = filesOf(book);
  std::ofstream(book / "QzrNumbers/QZR6PWR/QZR6PWR1.Ply.tw~") << "work";
  EXPECT_EQ(datedBackup(book, clock), zip);
  fs::create_directory(book / "old.tw~");
  std::ofstream(book / "old.tw~/x") << "work";
  std::vector<std::string> odd;
  if (test::hasPosixFiles) {
    odd.emplace_back("my: note.txt");
    std::ofstream(book / odd[0]) << "odd";
    fs::create_symlink(holder, book / "linked");
    EXPECT_THAT(complaintOf([&] { backUp(book, zip); }), testing::HasSubstr("linked: it is a link"));
    fs::remove(book / "linked");
  }
  std::ofstream(holder / "book 2026-11-20 101500.zip.tw~.AbCdEf") << "of a backup that was killed";
  const BackedUp backup = backUp(book, zip);
  EXPECT_EQ(backup.files, 11U);
  EXPECT_THAT(backup.leftOut, testing::ElementsAreArray(odd));
  fs::remove_all(book / "old.tw~");
  if (test::hasPosixFiles) fs::remove(book / odd[0]);
  EXPECT_NE(complaintOf([&] { backUp(book, zip); }).find("exists already"), std::string::npos);

  std::ofstream(book / "QzrNumbers/QZR6PWR/QZR6PWR1.Ply") << "changed";
  const auto changed = filesOf(book);
  const Restored restored = restore(zip, book, clock);
  EXPECT_EQ(restored.earlier, holder / "book before 2026-11-21 181500");
  EXPECT_EQ(filesOf(book), before);
  EXPECT_EQ(filesOf(restored.earlier), changed);

  // Emptied, the folder comes back from a copy that is a folder as well.
  const fs::path copy = datedBackup(holder / "copy", clock, BackupForm::folder);
  EXPECT_EQ(backUp(book, copy).files, 11U);
  EXPECT_EQ(filesOf(copy), before);
  EXPECT_NE(complaintOf([&] { backUp(book, book / "copy"); }).find("inside the record book"),
            std::string::npos);
  for (const auto& entry : fs::directory_iterator(book)) fs::remove_all(entry);
  EXPECT_EQ(restore(copy, book, clock).earlier, "");
  EXPECT_EQ(filesOf(book), before);
  EXPECT_EQ(std::distance(fs::directory_iterator(holder), {}), 5) << "something was left behind";
}

TEST_F(Backup, ARestoreThatWasCutShortIsFinishedAndNamed) {
  below();
  const auto restored = filesOf(book);
  finishRestore(book);
  EXPECT_TRUE(takeRecoveryNotices().empty());
  // As a kill between the last two steps leaves them.
  fs::rename(book, beside(book, restoredEnding));
  fs::create_directory(holder / "book before 2026-11-21 181500");
  finishRestore(book);
  EXPECT_EQ(filesOf(book), restored);
  EXPECT_THAT(takeRecoveryNotices(),
              testing::ElementsAre(testing::HasSubstr("book before 2026-11-21 181500")));
  // One that was cut short before it changed anything does not come back to life.
  fs::create_directory(beside(book, restoredEnding));
  finishRestore(book);
  EXPECT_EQ(std::distance(fs::directory_iterator(holder), {}), 2);
}

TEST_F(Backup, RefusesWhatIsNoBackupAndLeavesTheFolder) {
  below();
  backUp(book, zip);
  const auto before = filesOf(book);
  const auto archiveWith = [&](const char* name) {
    fs::path file = holder / "odd.zip";
    fs::remove(file);
    fs::copy_file(zip, file);
    zip_t* archive = zip_open(file.string().c_str(), 0, nullptr);
    zip_file_add(archive, name, zip_source_buffer(archive, "x", 1, 0), 0);
    zip_close(archive);
    return file;
  };
  for (const char* name : {"../out", "/out", "QzrNumbers/../../out", "a\\b", "C:out", "QzrNumbers/x.tw~"}) {
    const fs::path odd = archiveWith(name);
    EXPECT_NE(complaintOf([&] { restore(odd, book, clock); }).find("is not a file of a record book"),
              std::string::npos)
        << name;
  }
  std::string bytes(os::readFile(zip).view());
  const std::size_t middle = bytes.size() / 4;
  bytes[middle] = static_cast<char>(bytes[middle] ^ 0x55);
  os::writeDurably(holder / "damaged.zip", bytes);
  EXPECT_NE(complaintOf([&] { restore(holder / "damaged.zip", book, clock); }), "none");
  {
    const os::FileLock open(book / lockName, os::FileLock::Wait::no);
    EXPECT_NE(complaintOf([&] { restore(zip, book, clock); }).find("is open in Tallywick"),
              std::string::npos);
  }
  EXPECT_EQ(filesOf(book), before);
  EXPECT_FALSE(fs::exists(holder / "out"));
}

}  // namespace
}  // namespace tallywick
