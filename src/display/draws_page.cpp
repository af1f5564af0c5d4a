// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/draws_page.h"

#include "core/draws.h"
#include "core/games.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"
#include "core/words.h"

#include <algorithm>
#include <vector>

namespace tallywick {

namespace {

Draw nextDraw(SequentialReader& reader) {
  return drawOf(reader.record<drawFields>());
}
Draw nextDoublePlay(SequentialReader& reader) {
  return doublePlayDrawOf(reader.record<doublePlayFields>());
}

/// What the two charts differ in.
struct ChartSource {
  std::string_view title;
  std::string_view file;
  Draw (*next)(SequentialReader& reader);
};

constexpr ChartSource powerBallChart = {"Tallywick Last 100 Draws", searchDrawsFile, nextDraw};
constexpr ChartSource doublePlayChart = {"Tallywick Double Play Last 100 Draws", doublePlayFile,
                                         nextDoublePlay};

/// The bars' colours in the order of colors::recurring, strong enough for a page.
constexpr std::array<Color, colors::recurring.size()> barColors = {
    Color::rgb(255, 0, 0), Color::rgb(0, 102, 153), Color::rgb(0, 204, 0), Color::rgb(255, 255, 0),
    Color::rgb(204, 255, 255)};
constexpr Color otherBarColor = Color::rgb(153, 153, 153);

Color barColorOf(const Button& button) {
  const auto found = std::find(colors::recurring.begin(), colors::recurring.end(), button.backColor());
  if (found == colors::recurring.end()) return otherBarColor;
  return barColors[static_cast<std::size_t>(found - colors::recurring.begin())];
}

/// How often the number on each button came up; the last button's as the extra ball.
class DrawCounts {
 public:
  explicit DrawCounts(const ButtonRow<6>& buttons) : buttons_(buttons) {}

  void add(const Draw& draw) {
    for (std::size_t i = 0; i < draw.white.size(); ++i) {
      counts_[i] += std::count(draw.white.begin(), draw.white.end(), buttons_[i].caption());
    }
    counts_[5] += draw.extra == buttons_[5].caption() ? 1 : 0;
  }

  void draw(Chart& chart) const {
    for (std::size_t i = 0; i < counts_.size(); ++i) {
      chart.addBar(static_cast<double>(counts_[i]), buttons_[i].caption(), barColorOf(buttons_[i]));
    }
    chart.draw();
  }

 private:
  const ButtonRow<6>& buttons_;
  std::array<std::ptrdiff_t, 6> counts_{};
};

void startChart(Chart& chart, const ChartSource& source) {
  chart.clear();
  chart.setTitle(source.title);
}

void showLastHundred(Chart& chart, const ButtonRow<6>& buttons, const DataFolder& folder,
                     const ChartSource& source) {
  SequentialReader reader(folder, inFolder(powerBall, source.file), SequentialReader::Reading::inPieces);
  DrawCounts counts(buttons);
  for (std::size_t i = 0; i < chartedDraws; ++i) counts.add(source.next(reader));
  startChart(chart, source);
  counts.draw(chart);
}

bool hasPicture(std::string_view number) {
  const auto isDigit = [](char letter) { return letter >= '0' && letter <= '9'; };
  return number.size() == 2 && std::all_of(number.begin(), number.end(), isDigit) && number != "00";
}

void showBall(Image& image, std::string_view number) {
  image.load(hasPicture(number) ? join(pictureFolder, pictureFileName(image.isExtraBall(), number)) : "",
             number);
}

/// Shows the first draw of a draw history.
void showNewest(ImageRow& row, const DataFolder& folder, std::string_view file,
                Draw (*next)(SequentialReader& reader)) {
  SequentialReader reader(folder, file, SequentialReader::Reading::inPieces);
  const Draw newest = next(reader);
  for (std::size_t i = 0; i < newest.white.size(); ++i) showBall(row[i], newest.white[i]);
  showBall(row.back(), newest.extra);
}

}  // namespace

DrawsPage::DrawsPage(Form& form)
    : Draw1(form, "Draw1"),
      Command52(form, "Command52", "Last 100 Draws"),
      Command27(form, "Command27", "Double Play Last 100 Draws"),
      Command3(form, "Command3", "Show Newest Draws"),
      powerBallImages{Image(form, "Image1", false), Image(form, "Image2", false),
                      Image(form, "Image3", false), Image(form, "Image4", false),
                      Image(form, "Image5", false), Image(form, "Image6", true)},
      doublePlayImages{Image(form, "Image44", false), Image(form, "Image7", false),
                       Image(form, "Image8", false),  Image(form, "Image9", false),
                       Image(form, "Image10", false), Image(form, "Image11", true)},
      megaMillionsImages{Image(form, "Image39", false), Image(form, "Image40", false),
                         Image(form, "Image41", false), Image(form, "Image42", false),
                         Image(form, "Image43", false), Image(form, "Image38", true)} {}

void Command52_Click(DrawsPage& page, const ButtonRow<6>& frequent, const DataFolder& folder) {
  showLastHundred(page.Draw1, frequent, folder, powerBallChart);
}

void Command27_Click(DrawsPage& page, const ButtonRow<6>& frequent, const DataFolder& folder) {
  showLastHundred(page.Draw1, frequent, folder, doublePlayChart);
}

void drawStartUpChart(DrawsPage& page, const ButtonRow<6>& frequent, const DataFolder& folder) {
  startChart(page.Draw1, powerBallChart);
  SequentialReader reader(folder, inFolder(powerBall, powerBallChart.file),
                          SequentialReader::Reading::inPieces);
  DrawCounts counts(frequent);
  try {
    for (std::size_t i = 0; i < chartedDraws && !reader.atEnd(); ++i) counts.add(powerBallChart.next(reader));
  } catch (const RuntimeError&) {
    counts.draw(page.Draw1);
    throw;
  }
  counts.draw(page.Draw1);
}

std::string chartInWords(const Chart& chart) {
  if (chart.bars().empty()) return {};
  std::vector<std::string> numbers;
  for (const Chart::Bar& bar : chart.bars()) numbers.push_back(bar.label);
  numbers.back() = "extra ball " + numbers.back();
  const bool isDoublePlay = chart.title() == doublePlayChart.title;
  return join(listed(numbers), " in the last hundred ", isDoublePlay ? "Double Play" : powerBall.name,
              " draws");
}

std::string barMeaning(Color color, bool isExtraBall) {
  if (isExtraBall) return "the extra ball, which has no colour";
  const auto found = std::find(barColors.begin(), barColors.end(), color);
  if (found == barColors.end()) return join("not in the ", std::to_string(barColors.size()), " draws before");
  return join("also ", inFigures(static_cast<std::size_t>(found - barColors.begin()) + 1, "draw"), " before");
}

void Command3_Click(DrawsPage& page, const DataFolder& folder) {
  showNewest(page.powerBallImages, folder, inFolder(powerBall, drawsFile), nextDraw);
  showNewest(page.doublePlayImages, folder, inFolder(powerBall, doublePlayFile), nextDoublePlay);
  showNewest(page.megaMillionsImages, folder, inFolder(megaMillions, drawsFile), nextDraw);
}

}  // namespace tallywick
