// SPDX-License-Identifier: GPL-3.0-or-later
// Which files a server may send, and how they enter a folder.
#include "update/incoming_files.h"

#include "core/clock.h"
#include "core/file_names.h"
#include "core/runtime_error.h"
#include "support/raised.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

std::string refusal(const std::vector<ListedFile>& files) {
  return raisedBy([&] { checkIncoming(files, {3, 100, 150}); }).description;
}

TEST(CheckIncoming, RefusesWhatIsNoPlainNameOfAnothersFile) {
  using namespace std::string_literals;
  for (const std::string& name :
       {""s, "../up"s, "a/b"s, R"(a\b)"s, "C:x"s, "line\nend"s, "nul\0l"s, "NUL"s, "com1.txt"s, "aux .Dat"s,
        "a."s, "a "s, "del\x7f"s, "csi\xC2\x9B"s, "csi\x9B"s, "x\xE2\x9B"s, "Tallywick.jnl"s,
        "TALLYWICK.LCK"s, "QZRNUM6.Dat.tw~"s}) {
    EXPECT_NE(refusal({{"good", 1}, {name, 1}}), "") << name;
  }
  for (const char* name :
       {".hidden", "no extension", "QZR6PWR1.Ply", "com10", "console", "a;b %41#?.Dat", "\xC3\xBC.Dat",
        "\xC3\x9B.Dat", "\xE2\x82\x9B.Dat", "\xF0\x9F\x8E\xB1", "\xFC.Dat"}) {
    EXPECT_EQ(refusal({{name, {}}}), "");
  }
}

TEST(CheckIncoming, RefusesDoublesAndWhatIsTooMuchOrNothing) {
  EXPECT_EQ(refusal({{"a.Dat", 1}, {"A.dat", 1}}), "The transfer failed: the server lists \"A.dat\" twice");
  EXPECT_EQ(refusal({{"a", 100}, {"b", 1}, {"c", 1}}), "");
  EXPECT_EQ(refusal({{"a", 100}, {"b", 51}}), "The transfer failed: the server's folder contains too much");
  EXPECT_EQ(refusal({{"a", 101}}), "The transfer failed: the server lists \"a\", which is too large");
  EXPECT_EQ(refusal({{"a", 1}, {"b", 1}, {"c", 1}, {"d", 1}}),
            "The transfer failed: the server's folder contains too many files");
  EXPECT_EQ(refusal({}), "The transfer failed: the server's folder contains no files");
  EXPECT_EQ(refusal({{"\x1b[31m/", 1}}),
            "The transfer failed: the server lists \"?[31m/\", which is not a plain file name");
}

TEST(Wildcard, StarDotStarMeansEveryName) {
  EXPECT_TRUE(matchesWildcard("*.*", "nodot"));
  EXPECT_TRUE(matchesWildcard("qzr*.D?t", "QZRNUM6.Dat"));
  EXPECT_FALSE(matchesWildcard("*.Dat", "QZRNUM6.Dat.old"));
}

class Incoming : public testing::Test {
 protected:
  std::filesystem::path pwr() const { return scratch.root() / "QzrNumbers/QZR6PWR"; }
  void receive(const std::vector<IncomingFile>& files) { takeIn(files, scratch.folder(), pwr(), clock); }
  std::string get(const std::string& name) { return scratch.read("QzrNumbers/QZR6PWR/" + name); }
  void put(const std::string& name, std::string_view text) {
    scratch.write("QzrNumbers/QZR6PWR/" + name, text);
  }

  ScratchFolder scratch;
  FixedClock clock{"11-21-2026", "18:15:00"};
};

TEST_F(Incoming, TakeTheNamesOfTheOldOnes) {
  put("qzrnum6.DAT", "old");
  receive({{"QZRNUM6.Dat", "new"}, {"other", ""}});
  EXPECT_EQ(scratch.snapshot(), (std::map<std::string, std::string>{{"QzrNumbers/QZR6PWR/qzrnum6.DAT", "new"},
                                                                    {"QzrNumbers/QZR6PWR/other", ""}}));
}

TEST_F(Incoming, DrawsTakeTheMarkOfMadeUpOnesAway) {
  put("sample.txt", "");
  scratch.write("QzrNumbers/QZR6MEG/SAMPLE.TXT", "");
  receive({{"QzrPwr.Win", "amounts"}});
  receive({{"QZRNUM6.Dat", "made up too"}, {"SAMPLE.TXT", ""}});
  EXPECT_TRUE(scratch.exists("QzrNumbers/QZR6PWR/SAMPLE.TXT"));
  receive({{"qzrnum6.dat", "real"}});
  EXPECT_FALSE(scratch.exists("QzrNumbers/QZR6PWR/SAMPLE.TXT"));
  EXPECT_TRUE(scratch.exists("QzrNumbers/QZR6MEG/SAMPLE.TXT"));
}

TEST_F(Incoming, KeepThePlayersOldPlaysAsDatedCopies) {
  put("qzr6pwr1.PLY", "mine");
  put("QZR6PWR9.Sel", "same");
  put("QZRNUM6.Dat", "old");
  receive(
      {{"QZR6PWR1.Ply", "theirs"}, {"QZR6PWR9.Sel", "same"}, {"QZR6PWR2.Sav", "new"}, {"QZRNUM6.Dat", "x"}});
  EXPECT_EQ(get("QZR6PWR1.Ply"), "theirs");
  EXPECT_EQ(get("qzr6pwr1 2026-11-21 181500.PLY"), "mine");
  receive({{"QZR6PWR1.Ply", "again"}, {"QZR6PWR1 2026-11-21 181500 3.Ply", "taken"}});
  EXPECT_EQ(get("qzr6pwr1 2026-11-21 181500.PLY"), "mine") << "a copy was overwritten";
  EXPECT_EQ(get("qzr6pwr1 2026-11-21 181500 2.PLY"), "theirs");
  EXPECT_EQ(scratch.snapshot().size(), 7U) << "only what differs is kept";
}

TEST_F(Incoming, DoNotReplaceAFolder) {
  std::filesystem::create_directory(pwr() / "Archive");
  std::filesystem::create_directory(pwr() / "Backup");
  std::filesystem::create_directory(pwr() / "backup");
  const auto before = scratch.snapshot();
  EXPECT_THROW(receive({{"QZRNUM6.Dat", "new"}, {"archive", "x"}}), RuntimeError);
  EXPECT_EQ(scratch.snapshot(), before);
  EXPECT_NO_THROW(receive({{"QZRNUM6.Dat", "new"}}))
      << "the folder's lock was kept, or folders that nobody lists are in the way";
}

}  // namespace
}  // namespace tallywick::test
