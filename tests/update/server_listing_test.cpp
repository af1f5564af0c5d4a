// SPDX-License-Identifier: GPL-3.0-or-later
// What servers of several makes answer when asked for the files of a folder.
#include "update/server_listing.h"

#include "core/text.h"

#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

/// "name=size" of each file with a comma between, "-" for an unknown size; "bad" for no listing.
std::string shown(const Listing& listing) {
  if (!listing) return "bad";
  std::string text;
  for (const ListedFile& file : *listing) {
    text += join(text.empty() ? "" : ",", file.name, "=", file.size ? std::to_string(*file.size) : "-");
  }
  return text;
}

struct Case {
  std::string_view line;
  std::string_view files;
};

class PeopleListing : public testing::TestWithParam<Case> {};
TEST_P(PeopleListing, Reads) {
  EXPECT_EQ(shown(readPeopleListing(join(GetParam().line, "\r\n"))), GetParam().files) << GetParam().line;
}
INSTANTIATE_TEST_SUITE_P(
    Unix, PeopleListing,
    testing::Values(Case{"-rw-r--r--   1 owner group   1234 Nov 21 10:35 QZRNUM6.Dat", "QZRNUM6.Dat=1234"},
                    Case{"-rw-r--r-- 1 0 0 5 Jan  1  2026 two  words ", "two  words =5"},
                    Case{"-rw-r--r--+ 1 owner Domain Users 5 Nov  1 10:35 a", "a=5"},
                    Case{"-rwxr-xr-x@ 1 1000 77 5000000000 2026-11-21 10:35  lead", " lead=5000000000"},
                    Case{"-rw-r--r-- 1 owner 5 Nov 21 9:35 12 Dec 31 10:00 x", "12 Dec 31 10:00 x=5"},
                    Case{"drwxr-xr-x 2 owner group 4096 Nov 21 10:35 folder", ""},
                    Case{"lrwxrwxrwx 1 owner group 9 Nov 21 10:35 link -> /etc/passwd", ""},
                    Case{"crw-rw-rw- 1 root root 1, 3 Nov 21 10:35 null", ""}, Case{"total 12", ""},
                    Case{"", ""}, Case{"-rw-r--r- 1 owner group 5 Nov 21 10:35 a", ""},
                    Case{"-rw-r--r-- 1 owner group", "bad"},
                    Case{"-rw-r--r-- 1 owner group 5 Nov 21 10:35", "bad"}));
INSTANTIATE_TEST_SUITE_P(Windows, PeopleListing,
                         testing::Values(Case{"11-21-26  10:35AM                 1234 a b.Dat",
                                              "a b.Dat=1234"},
                                         Case{"11-21-2026  22:35       7 11-21-26", "11-21-26=7"},
                                         Case{"11-21-26  10:35AM       <DIR>          folder", ""},
                                         Case{"11-21-26  10:35AM       <JUNCTION>     there", ""},
                                         Case{"11-21-26  10:35AM       12", "bad"},
                                         Case{"11-21-26  10:35AM       many a.Dat", "bad"}));

class MachineListing : public testing::TestWithParam<Case> {};
TEST_P(MachineListing, Reads) {
  EXPECT_EQ(shown(readMachineListing(join(GetParam().line, "\r\n"))), GetParam().files) << GetParam().line;
}
INSTANTIATE_TEST_SUITE_P(Facts, MachineListing,
                         testing::Values(Case{"type=file;size=12;modify=20261121103500; a; b=c", "a; b=c=12"},
                                         Case{"Size=7;Type=FILE; x", "x=7"}, Case{"type=file; x", "x=-"},
                                         Case{"type=cdir;perm=el; .", ""}, Case{"type=dir; folder", ""},
                                         Case{"type=OS.unix=slink:/etc/passwd;size=3; link", ""},
                                         Case{"size=3; x", "bad"}, Case{"type=file;size=12;", "bad"},
                                         Case{"type=file;size=many; x", "x=-"}));

TEST(ServerListing, IsNotReliedOnWhereItsLastLineHasNoEnd) {
  const std::string_view line = "-rw-r--r-- 1 owner group 1234 Nov 21 10:35 QZRNUM6.Dat";
  EXPECT_EQ(shown(readPeopleListing(join(line, "\n", line, "62.Dat\n"))),
            "QZRNUM6.Dat=1234,QZRNUM6.Dat62.Dat=1234");
  EXPECT_EQ(shown(readPeopleListing(join(line, "\n", line))), "bad");
  EXPECT_EQ(shown(readMachineListing("type=file;size=12; QZRNU")), "bad");
  EXPECT_EQ(shown(readMachineListing("")), "");
}

}  // namespace
}  // namespace tallywick::test
