// SPDX-License-Identifier: GPL-3.0-or-later
// The rules by which fields are cut out of a file, and what happens at its end.
#include "core/sequential_reader.h"

#include "core/runtime_error.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace tallywick {
namespace {

using testing::ElementsAre;

std::vector<std::string> allFields(std::string_view text) {
  SequentialReader reader(text, "test");
  std::vector<std::string> fields;
  while (!reader.atEnd()) fields.emplace_back(reader.field());
  return fields;
}

TEST(SequentialReader, CutsFieldsByTheRulesOfTheFormat) {
  EXPECT_THAT(allFields("\"01\",\"a,b\",\"\"\r\n"), ElementsAre("01", "a,b", ""));
  EXPECT_THAT(allFields("01,  02,\" 03 \"\n04"), ElementsAre("01", "02", " 03 ", "04"));
  EXPECT_THAT(allFields("a ,\"b\" ,c\rd"), ElementsAre("a ", "b", "c", "d"));
  EXPECT_THAT(allFields("a,\r\n\r\nb"), ElementsAre("a", "", "", "b"));
  EXPECT_THAT(allFields("\"open,01\r\n02"), ElementsAre("open,01", "02"));
}

TEST(SequentialReader, RecordsRunOverLineEnds) {
  SequentialReader reader("1,2\r\n3\r\n4,5,6\r\n", "test");
  EXPECT_THAT(reader.record<3>(), ElementsAre("1", "2", "3"));
  EXPECT_THAT(reader.record<3>(), ElementsAre("4", "5", "6"));
  EXPECT_TRUE(reader.atEnd());
}

// Records of one shape are read without looking at every character; every record must read as if it were the
// only one.
TEST(SequentialReader, ARecordReadsAlikeWhateverStoodBeforeIt) {
  const std::vector<std::string> lines = {"\"11\",\"18\",\"2026\",\"07\"\r\n",
                                          "\"11\",\"14\",\"2026\",\"09\"\r\n",
                                          "11,14,2026,09\r\n",
                                          "11, 4,2026,09\r\n",
                                          "11,\"\",2026,09\r\n",
                                          "11,14,2026,9\n",
                                          "11,14,2026,\"9\"\n",
                                          "11,1 4,2026,7\n",
                                          "11,1\",2026,7\n",
                                          "11,,2026,07\n",
                                          "\"1\",\"1,\",\"2026\",\"07\"\r\n",
                                          "11,14,2026,0x\r\n",
                                          " 11,14,2026,09\n",
                                          "11,14,2026,09\r"};
  for (const std::string& before : lines) {
    for (const std::string& line : lines) {
      const std::string text = before + line + line + std::string(200, '0');
      SequentialReader alone(line, "alone");
      const auto expected = alone.record<4>();
      SequentialReader reader(text, "both");
      reader.record<4>();
      EXPECT_EQ(reader.record<4>(), expected) << before << line;
      EXPECT_EQ(reader.record<4>(), expected) << before << line;
      EXPECT_EQ(reader.field(), std::string(200, '0')) << before << line;
    }
  }
}

// A piece may end anywhere in a record, and a record may be longer than a piece.
TEST(SequentialReader, AFileReadInPiecesReadsAsAWhole) {
  const std::vector<std::string> kinds = {"\"11\",\"18\",\"2026\",\"07\"\r\n", "11,14,2026,09\r\n",
                                          "11,14,2026,9\n", "11,14,,09\r",
                                          "\"1\",\"1,\"\r\n\"2026\",\"07\"\r\n"};
  std::string text;
  std::size_t records = 0;
  for (; records < 40'000; ++records)
    text += kinds[records * records % 7 * (records / 5000 % 3) % kinds.size()];
  const std::string seven(900'000, '7');
  text += "11," + seven + ",2026,09\r\n11,14,2026," + seven + "\r\n" + text;
  records = 2 * records + 2;
  for (const std::string end : {"", "\r\n", "11,18"}) {
    test::ScratchFolder files;
    files.write("QZRNUM62.Dat", text + end);
    SequentialReader whole(files.folder(), "QZRNUM62.Dat");
    SequentialReader pieces(files.folder(), "QZRNUM62.Dat", SequentialReader::Reading::inPieces);
    SequentialReader kept(files.folder(), "QZRNUM62.Dat", SequentialReader::Reading::asNeeded);
    std::vector<Fields<4>> keptRecords;
    while (whole.recordNumber() < records) {
      ASSERT_EQ(pieces.record<4>(), whole.record<4>()) << whole.recordNumber();
      keptRecords.push_back(kept.record<4>());
    }
    SequentialReader again(files.folder(), "QZRNUM62.Dat");
    for (const Fields<4>& record : keptRecords) ASSERT_EQ(record, again.record<4>()) << again.recordNumber();
    EXPECT_EQ(pieces.atEnd(), end.empty());
    EXPECT_THROW(pieces.record<4>(), RuntimeError);
    EXPECT_TRUE(pieces.atEnd());
  }
}

// Records whose length divides a piece's size.
TEST(SequentialReader, RecordsThatEndWithAPieceAreNotTheLastOnes) {
  std::string text;
  while (text.size() < 1'000'000) text += "11,14,2026,0000000000000000009\r\n";
  test::ScratchFolder files;
  files.write("QZRNUM62.Dat", text);
  SequentialReader reader(files.folder(), "QZRNUM62.Dat", SequentialReader::Reading::inPieces);
  forEachRecordView<4>(reader,
                       [](const RecordView<4>& record) { ASSERT_EQ(record[3], "0000000000000000009"); });
  EXPECT_EQ(reader.recordNumber(), text.size() / 32);
}

TEST(SequentialReader, AFileThatEndsBehindACommaHasAnEmptyLastField) {
  SequentialReader reader("1,2,\n3,4,", "test");
  EXPECT_THAT(reader.record<3>(), ElementsAre("1", "2", ""));
  EXPECT_THAT(reader.record<3>(), ElementsAre("3", "4", ""));
  EXPECT_TRUE(reader.atEnd());
  SequentialReader tooShort("1,", "test");
  EXPECT_THROW(tooShort.record<3>(), RuntimeError);
}

TEST(SequentialReader, TheLastRecordIsLeftUnused) {
  std::vector<std::string> used;
  SequentialReader reader("1\n2\n3", "test");
  forEachRecordButLast<1>(reader, [&](const RecordView<1>& record) { used.emplace_back(record[0]); });
  EXPECT_THAT(used, ElementsAre("1", "2"));
  SequentialReader empty("", "test");
  EXPECT_THROW(forEachRecordButLast<1>(empty, [](const RecordView<1>&) {}), RuntimeError);
}

}  // namespace
}  // namespace tallywick
