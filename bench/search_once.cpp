// SPDX-License-Identifier: GPL-3.0-or-later
// One search over a data folder, as a program of its own whose time can be taken from outside; and the
// folder.
#include "core/data_folder.h"
#include "draw_history.h"
#include "search/marks.h"
#include "search/search_pages.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace tallywick {
namespace {

/// Writes boxes to standard error.
class ErrorBoxes : public MessageBoxes {
 public:
  MessageBox::Answer show(const MessageBox& box) override {
    std::fprintf(stderr, "%s\n", box.text.c_str());
    return MessageBox::Answer::ok;
  }
};

void write(const DataFolder& folder, const std::string& written, std::string_view text) {
  const std::filesystem::path file = folder.resolve(written);
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

void makeFolder(const DataFolder& folder, std::size_t draws, bench::Shape shape) {
  write(folder, inFolder(powerBall, searchDrawsFile), bench::drawHistory(draws, shape));
  write(folder, inFolder(powerBall, doublePlayFile), bench::drawHistory(draws, bench::Shape::doublePlay));
}

/// The search's tally.
std::string search(const DataFolder& folder, std::string_view what) {
  Form form("Form1");
  GameFrames frames(form);
  SearchPages pages(form);
  ErrorBoxes boxes;
  TwoThreePage& page = pages.twoThree;
  displayNumbers(page.numbers, " 03-07-2026    07 19 33 48 61   12", extraBallPosition);
  toggleMark(page.numbers[0]);
  toggleMark(page.numbers[1]);
  if (what == "one") {
    pages.played.Command23.setCaption("07");
    Command30_Click(pages.played, frames, folder, boxes);
    return pages.played.Label24.caption();
  }
  if (what == "double") {
    Command26_Click(page, folder, boxes);
    return page.Label25.caption();
  }
  if (what == "three") toggleMark(page.numbers[2]);
  Command38_Click(page, folder, boxes);
  return page.Label25.caption();
}

int run(int count, char** arguments) {
  if (count < 3) {
    std::fprintf(stderr, "usage: %s make FOLDER DRAWS SHAPE(0-2) | two|three|one|double FOLDER\n",
                 arguments[0]);
    return 2;
  }
  const std::string_view what = arguments[1];
  const DataFolder folder{std::filesystem::path(arguments[2])};
  if (what == "make" && count == 5) {
    makeFolder(folder, std::strtoul(arguments[3], nullptr, 10),
               static_cast<bench::Shape>(std::atoi(arguments[4])));
  } else {
    std::printf("%s\n", search(folder, what).c_str());
  }
  return 0;
}

}  // namespace
}  // namespace tallywick

int main(int count, char** arguments) {
  try {
    return tallywick::run(count, arguments);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
