// The chart of the last hundred draws and the pictures of the newest ones.
#include "display/draws_page.h"

#include "core/games.h"
#include "display/draw_files.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tallywick {
namespace {

using test::fileOf;
using test::Record;
using test::Records;
using testing::ElementsAre;

struct Draws : testing::Test {
  Draws() {
    const std::array<const char*, 6> numbers = {"01", "02", "3", "04", "05", "76"};
    const std::array<Color, 6> backgrounds = {colors::red,    colors::green,     colors::lightBlue,
                                              colors::yellow, colors::lightCyan, colors::cyan};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      frequent[i].setCaption(numbers[i]);
      frequent[i].setBackColor(backgrounds[i]);
    }
  }
  void write(std::string_view file, std::string_view text, const GameInfo& game = powerBall) {
    folder.write(inFolder(game, file), text);
  }
  std::vector<double> values() const {
    std::vector<double> values;
    for (const Chart::Bar& bar : page.Draw1.bars()) values.push_back(bar.value);
    return values;
  }
  std::vector<std::string> bars() const {
    std::vector<std::string> bars;
    for (const Chart::Bar& bar : page.Draw1.bars()) bars.push_back(bar.label + " " + bar.color.text());
    return bars;
  }

  test::ScratchFolder folder;
  Form form{"Form1"};
  DrawsPage page{form};
  ButtonRow<6> frequent{form, {"Command9", "Command10", "Command11", "Command12", "Command13", "Command14"}};
};

/// `count` draws none of whose numbers is charted, but for the newest, the hundredth and the one after it.
Records chartedHistory(std::size_t count, const Record& behindDate) {
  const auto with = [&](const Record& numbers) {
    Record record = {"01", "28", "2026"};
    record.insert(record.end(), behindDate.begin(), behindDate.end());
    record.insert(record.end(), numbers.begin(), numbers.end());
    return record;
  };
  Records records(count, with({"50", "51", "52", "53", "54", "01", "02"}));
  records[0] = with({"02", "50", "02", "76", "04", "76", "05"});
  if (count >= 100) records[99] = with({"01", "03", "76", "04", "52", "05", "2"});
  if (count > 100) records[100] = with({"01", "02", "03", "04", "05", "76", "2"});
  return records;
}

TEST_F(Draws, TheLastHundredAreCountedByKindOfBall) {
  const Record mainDraw = {"01", "02", "3", "04", "05", "76", "x", "y"};
  write(searchDrawsFile, fileOf(chartedHistory(101, {})));
  write(doublePlayFile, fileOf(chartedHistory(100, mainDraw)));
  for (const auto show : {Command52_Click, Command27_Click, drawStartUpChart}) {
    show(page, frequent, folder.folder());
    EXPECT_EQ(page.Draw1.title(),
              show == Command27_Click ? "Tallywick Double Play Last 100 Draws" : "Tallywick Last 100 Draws");
    EXPECT_THAT(values(), ElementsAre(1, 2, 0, 2, 0, 1)) << page.Draw1.title();
    EXPECT_THAT(bars(), ElementsAre("01 #FF0000", "02 #00CC00", "3 #006699", "04 #FFFF00", "05 #CCFFFF",
                                    "76 #999999"));
  }
}

TEST_F(Draws, AShortHistoryIsAnErrorButNotAtStartUp) {
  write(searchDrawsFile, fileOf(chartedHistory(99, {})));
  drawStartUpChart(page, frequent, folder.folder());
  EXPECT_THAT(values(), ElementsAre(0, 2, 0, 1, 0, 1));
  EXPECT_EQ(test::errorOf([&] { Command52_Click(page, frequent, folder.folder()); }), 62);
  EXPECT_THAT(values(), ElementsAre(0, 2, 0, 1, 0, 1)) << "the chart stays";

  write(searchDrawsFile, fileOf(chartedHistory(2, {})) + "\"01\"");
  EXPECT_THROW(drawStartUpChart(page, frequent, folder.folder()), RuntimeError);
  EXPECT_THAT(values(), ElementsAre(0, 2, 0, 1, 0, 1)) << "what stands before a torn record";
}

std::vector<std::string> picturesOf(const ImageRow& row) {
  std::vector<std::string> pictures;
  for (const Image& image : row) pictures.push_back(image.picture() + "|" + image.number());
  return pictures;
}

TEST_F(Draws, NewestDrawsAsPictures) {
  const std::string folderName = R"(QzrNumbers\PlyNumbers\)";
  write(drawsFile, fileOf({{"01", "28", "2026", "01", "7", "00", "99", "100", "07", "2"}}));
  write(drawsFile, fileOf({{"01", "27", "2026", "02", "a1", "", "1 ", "70", "8", "2"}}), megaMillions);
  EXPECT_THROW(Command3_Click(page, folder.folder()), RuntimeError);
  EXPECT_THAT(picturesOf(page.powerBallImages),
              ElementsAre(folderName + "#01.bmp|01", "|7", "|00", folderName + "#99.bmp|99", "|100",
                          folderName + "%07.bmp|07"));
  EXPECT_EQ(page.megaMillionsImages[0].picture(), "") << "the missing Double Play file comes first";

  write(doublePlayFile, fileOf(test::distinctDoublePlays(2)));
  Command3_Click(page, folder.folder());
  EXPECT_THAT(picturesOf(page.megaMillionsImages),
              ElementsAre(folderName + "#02.bmp|02", "|a1", "|", "|1 ", folderName + "#70.bmp|70", "|8"));
  EXPECT_EQ(static_cast<const Image&>(*form.find("Image44")).number(), "01");
  EXPECT_EQ(static_cast<const Image&>(*form.find("Image11")).picture(), folderName + "%76.bmp");
}

}  // namespace
}  // namespace tallywick
