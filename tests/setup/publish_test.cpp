// The update server's tree: which files go where, and what publishing again does.
#include "setup/publish.h"

#include "core/file_commit.h"
#include "core/runtime_error.h"
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
  fs::path tree = scratch.root() / "server/tree";
  fs::path pwr = tree / "D:/QZR/Z1-Pwr/Qzr6";
};

TEST_F(Publishing, ServesEachGameUnderBothSpellings) {
  run();
  const std::set<std::string> files = {"QZRNUM6.Dat", "QZRNUM62.Dat", "QZRNUM72.Dat", "QzrPwr.Win"};
  const std::set<std::string> megFiles = {"QZRNUM6.Dat", "QZRNUM62.Dat", "QzrMeg.Win"};
  EXPECT_EQ(namesIn(pwr), files);
  EXPECT_EQ(namesIn(tree / "D:/QZR/Z1-PWR/QZR6"), files);
  EXPECT_EQ(namesIn(tree / "D:/QZR/Z2-Meg/Qzr6"), megFiles);
  EXPECT_EQ(namesIn(tree / "D:/QZR/Z2-MEG/QZR6"), megFiles);
  EXPECT_EQ(textOf(pwr / "QZRNUM72.Dat"), scratch.read("QzrNumbers/QZR6PWR/QZRNUM72.Dat"));

  fs::rename(tree, scratch.root() / "moved");
  EXPECT_EQ(namesIn(scratch.root() / "moved/D:/QZR/Z2-MEG/QZR6"), megFiles) << "links do not leave the tree";
}

TEST_F(Publishing, FillsSecondFoldersWhereThereAreNoLinks) {
  const fs::path second = tree / "D:/QZR/Z1-PWR/QZR6";
  fs::create_directories(second);
  run();
  EXPECT_FALSE(fs::equivalent(second, pwr));
  EXPECT_EQ(namesIn(second), namesIn(pwr));
}

TEST_F(Publishing, AgainReplacesWhatDiffersInOneStep) {
  run();
  const fs::path draws = pwr / "QZRNUM6.Dat";
  fs::create_hard_link(draws, tree / "as a client in mid-download has it");
  const std::string old = textOf(draws);
  const auto amountsTime = fs::file_time_type() + std::chrono::hours(1);
  fs::last_write_time(pwr / "QzrPwr.Win", amountsTime);
  const std::string newer = records({"11,25,2026,01,02,03,04,05,06,2"}) + old;
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", newer);
  EXPECT_NE(run().find("newest draw 11-25-2026"), std::string::npos);
  EXPECT_EQ(textOf(draws), newer);
  EXPECT_EQ(textOf(tree / "as a client in mid-download has it"), old);
  EXPECT_EQ(fs::last_write_time(pwr / "QzrPwr.Win"), amountsTime) << "the same bytes are left alone";
  EXPECT_EQ(namesIn(pwr.parent_path()).size(), 2U) << "a work file is left";
}

TEST_F(Publishing, WritesNothingWhereAFileIsMissingOrCut) {
  run();
  const std::string before = textOf(pwr / "QZRNUM6.Dat");
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", records({"11,25,2026,01,02,03,04,05,06,2"}));
  const auto fails = [&](std::int32_t number, const std::string& file) {
    try {
      run();
      ADD_FAILURE() << file << " was published";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.number(), number);
      EXPECT_NE(error.where().find(file), std::string::npos) << error.where();
    }
    EXPECT_EQ(textOf(pwr / "QZRNUM6.Dat"), before);
  };
  scratch.write("QzrNumbers/QZR6MEG/QZRNUM62.Dat", records({"11,25,2026,01,02"}));
  fails(62, "QZRNUM62.Dat");
  scratch.write("QzrNumbers/QZR6MEG/QZRNUM62.Dat", "");
  fails(62, "QZRNUM62.Dat");
  fs::remove(scratch.folder().resolve("QzrNumbers/QZR6MEG/QzrMeg.Win"));
  fails(53, "QzrMeg.Win");
}

}  // namespace
}  // namespace tallywick::setup
