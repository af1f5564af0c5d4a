// SPDX-License-Identifier: GPL-3.0-or-later
// One search or count over a data folder, pressed once or more often, as a program of its own whose time can
// be taken from outside; and the folder.
#include "core/data_folder.h"
#include "draw_history.h"
#include "reported_main.h"
#include "search/marks.h"
#include "search/search_pages.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
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
  const std::string history = bench::drawHistory(draws, shape);
  for (const GameInfo* game : allGames) {
    for (std::string_view file : {drawsFile, searchDrawsFile}) write(folder, inFolder(*game, file), history);
  }
  write(folder, inFolder(powerBall, doublePlayFile), bench::drawHistory(draws, bench::Shape::doublePlay));
}

/// The window's search pages with a number chosen on each.
struct Window {
  explicit Window(const DataFolder& files) : folder(files) {
    for (ButtonRow<6>* numbers :
         {&pages.twoThree.numbers, &pages.havePlayed.numbers, &pages.havePlayedPlays.numbers}) {
      displayNumbers(*numbers, " 03-07-2026    07 19 33 48 61   12", extraBallPosition);
    }
    pages.played.Command23.setCaption("07");
  }

  /// Marks that many of the numbers and no others.
  static void mark(ButtonRow<6>& numbers, std::size_t count) {
    unmarkAll(numbers);
    for (std::size_t i = 0; i < count; ++i) toggleMark(numbers[i]);
  }

  const DataFolder& folder;
  Form form{"Form1"};
  GameFrames frames{form};
  SearchPages pages{form};
  ErrorBoxes boxes;
};

/// A press and the label with its tally.
struct Search {
  std::string_view name;
  void (*press)(Window& window);
  const Label& (*tally)(const Window& window);
};

const Label& twoThreeTally(const Window& window) {
  return window.pages.twoThree.Label25;
}

template <auto Handler, std::size_t Marks>
void searchFor(Window& window) {
  TwoThreePage& page = window.pages.twoThree;
  Window::mark(page.numbers, Marks);
  Handler(page, window.folder, window.boxes);
}

void countHavePlayed(Window& window) {
  HavePlayedPage& page = window.pages.havePlayed;
  Window::mark(page.numbers, 1);
  Command21_Click(page, window.frames, window.folder, window.boxes);
}

void countPlayed(Window& window) {
  Command30_Click(window.pages.played, window.frames, window.folder, window.boxes);
}

void countHavePlayedPlays(Window& window) {
  HavePlayedPlaysPage& page = window.pages.havePlayedPlays;
  Window::mark(page.numbers, 1);
  Command46_Click(page, window.pages.havePlayed.Combo5, window.frames, window.folder, window.boxes);
}

constexpr Search searches[] = {
    {"two", searchFor<Command38_Click, 2>, twoThreeTally},
    {"three", searchFor<Command38_Click, 3>, twoThreeTally},
    {"mega-millions", searchFor<Command25_Click, 2>, twoThreeTally},
    {"double", searchFor<Command26_Click, 2>, twoThreeTally},
    {"have-played", countHavePlayed,
     [](const Window& window) -> const Label& { return window.pages.havePlayed.Label23; }},
    {"one", countPlayed, [](const Window& window) -> const Label& { return window.pages.played.Label24; }},
    {"have-played-plays", countHavePlayedPlays,
     [](const Window& window) -> const Label& { return window.pages.havePlayedPlays.Label26; }},
};

/// Presses `presses` times and prints the tally and the shortest processor time of the presses after the
/// first, in microseconds.
int press(const Search& search, const DataFolder& folder, int presses) {
  Window window(folder);
  std::clock_t best = 0;
  for (int i = 0; i < presses; ++i) {
    const std::clock_t began = std::clock();
    search.press(window);
    const std::clock_t took = std::clock() - began;
    if (i == 1 || (i > 1 && took < best)) best = took;
  }
  std::printf("%s\n", search.tally(window).caption().c_str());
  if (presses > 1) std::printf("%.0f\n", static_cast<double>(best) * 1e6 / CLOCKS_PER_SEC);
  return 0;
}

int complain(const char* program) {
  std::fprintf(stderr, "usage: %s make FOLDER DRAWS SHAPE(0-2) | SEARCH FOLDER [PRESSES]\n", program);
  return 2;
}

int run(int count, char** arguments) {
  if (count < 3) return complain(arguments[0]);
  const std::string_view what = arguments[1];
  const DataFolder folder{std::filesystem::path(arguments[2])};
  if (what == "make" && count == 5) {
    makeFolder(folder, std::strtoul(arguments[3], nullptr, 10),
               static_cast<bench::Shape>(std::atoi(arguments[4])));
    return 0;
  }
  for (const Search& search : searches) {
    if (what == search.name) return press(search, folder, count > 3 ? std::atoi(arguments[3]) : 1);
  }
  return complain(arguments[0]);
}

}  // namespace
}  // namespace tallywick

int main(int count, char** arguments) {
  return tallywick::bench::reported(tallywick::run, count, arguments);
}
