// SPDX-License-Identifier: GPL-3.0-or-later
// The update server's tree: which files go where, and what publishing again does.
#include "setup/publish.h"

#include "support/host.h"
#include "support/raised.h"
#include "support/record_book.h"

#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace tallywick::setup {
namespace {

namespace fs = std::filesystem;
using test::records;

class Publishing : public testing::Test {
 protected:
  Publishing() { test::writeRecordBook(scratch); }

  std::string run() {
    std::ostringstream out;
    publish(tree, scratch.root(), out);
    return out.str();
  }
  static std::string textOf(const fs::path& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
  }
  static std::set<std::string> namesIn(const fs::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder)) names.insert(entry.path().filename().string());
    return names;
  }

  test::ScratchFolder scratch;
  const fs::path tree = scratch.root() / "server/tree";
  const fs::path pwr = test::driveOf(tree) / "QZR/Z1-Pwr/Qzr6";
  const std::set<std::string> pwrFiles = {"QZRNUM6.Dat", "QZRNUM62.Dat", "QZRNUM72.Dat", "QzrPwr.Win"};
  const std::set<std::string> megFiles = {"QZRNUM6.Dat", "QZRNUM62.Dat", "QzrMeg.Win"};
  const std::string newer =
      records({"11,25,2026,01,02,03,04,05,06,2"}) + scratch.read("QzrNumbers/QZR6PWR/QZRNUM6.Dat");
};

TEST_F(Publishing, ServesEachGameUnderBothSpellings) {
  run();
  EXPECT_EQ(textOf(pwr / "QZRNUM72.Dat"), scratch.read("QzrNumbers/QZR6PWR/QZRNUM72.Dat"));
  const fs::path moved = scratch.root() / "moved";
  fs::rename(tree, moved);
  for (const char* folder : {"QZR/Z1-Pwr/Qzr6", "QZR/Z1-PWR/QZR6"})
    EXPECT_EQ(namesIn(test::driveOf(moved) / folder), pwrFiles);
  for (const char* folder : {"QZR/Z2-Meg/Qzr6", "QZR/Z2-MEG/QZR6"})
    EXPECT_EQ(namesIn(test::driveOf(moved) / folder), megFiles);
}

TEST_F(Publishing, FillsSecondFoldersWhereThereAreNoLinks) {
  if (!test::hasPosixFiles) GTEST_SKIP() << "both spellings are one folder here";
  const fs::path second = tree / "D:/QZR/Z1-PWR/QZR6";
  fs::create_directories(second);
  run();
  EXPECT_FALSE(fs::equivalent(second, pwr));
  EXPECT_EQ(namesIn(second), pwrFiles);
}

TEST_F(Publishing, AgainReplacesWhatDiffersAlone) {
  run();
  const auto amountsTime = test::makeOld(pwr / "QzrPwr.Win");
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", newer);
  run();
  EXPECT_EQ(textOf(pwr / "QZRNUM6.Dat"), newer);
  EXPECT_EQ(fs::last_write_time(pwr / "QzrPwr.Win"), amountsTime) << "the same bytes are left alone";
  const std::set<std::string> spellings =
      test::hasPosixFiles ? std::set<std::string>{"QZR6", "Qzr6"} : std::set<std::string>{"Qzr6"};
  EXPECT_EQ(namesIn(pwr.parent_path()), spellings);
}

TEST_F(Publishing, WritesNothingWhereAFileIsMissingOrCutOrInTheWay) {
  run();
  const std::string before = textOf(pwr / "QZRNUM6.Dat");
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", newer);
  const auto fails = [&](std::int32_t number, const std::string& file) {
    const test::Raised raised = test::raisedBy([this] { run(); });
    EXPECT_EQ(raised.number, number);
    EXPECT_NE(raised.where.find(file), std::string::npos) << raised.where;
    EXPECT_EQ(textOf(pwr / "QZRNUM6.Dat"), before);
  };
  for (const std::string& broken : {records({"11,25,2026,01,02"}), std::string()}) {
    scratch.write("QzrNumbers/QZR6MEG/QZRNUM62.Dat", broken);
    fails(62, "QZRNUM62.Dat");
  }
  fs::remove(scratch.folder().resolve("QzrNumbers/QZR6MEG/QzrMeg.Win"));
  fails(53, "QzrMeg.Win");
  scratch.write("QzrNumbers/QZR6MEG/QzrMeg.Win", records({"11,25,2026,40,0"}));
  scratch.write("QzrNumbers/QZR6MEG/QZRNUM62.Dat", newer);
  fs::remove(pwr / "QzrPwr.Win");
  fs::create_directory(pwr / "qzrpwr.win");
  fails(75, "qzrpwr.win");
  if (!test::hasPosixFiles) return;  // All spellings are one file.
  std::ofstream(pwr / "QZRPWR.win") << "another spelling";
  EXPECT_THROW(run(), std::runtime_error);
  EXPECT_EQ(textOf(pwr / "QZRPWR.win"), "another spelling");
  fs::remove_all(tree);
  std::ofstream(scratch.root() / "QzrNumbers/QZR6MEG/qzrnum6.dat") << newer;
  EXPECT_THROW(run(), std::runtime_error) << "two spellings in the source";
  EXPECT_FALSE(fs::exists(tree));
}

}  // namespace
}  // namespace tallywick::setup
