// SPDX-License-Identifier: GPL-3.0-or-later
// The searches over histories of a usual and of a very large size.
#include "draw_history.h"
#include "search/marks.h"
#include "search/search_pages.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <benchmark/benchmark.h>

namespace tallywick {
namespace {

constexpr std::string_view historyFile = R"(QzrNumbers\QZR6PWR\QZRNUM62.Dat)";
constexpr std::string_view doublePlayHistoryFile = R"(QzrNumbers\QZR6PWR\QZRNUM72.Dat)";

struct Window {
  Window(const benchmark::State& state, std::string_view file) {
    const std::string history = bench::drawHistory(static_cast<std::size_t>(state.range(0)),
                                                   static_cast<bench::Shape>(state.range(1)));
    files.write(file, history);
    bytes = static_cast<std::int64_t>(history.size());
    const char* const captions[] = {"07", "19", "33", "48", "61", "12"};
    for (std::size_t i = 0; i < 6; ++i) pages.twoThree.numbers[i].setCaption(captions[i]);
    pages.played.Command23.setCaption("07");
  }
  void report(benchmark::State& state) const { state.SetBytesProcessed(state.iterations() * bytes); }

  test::ScratchFolder files;
  Form form{"Form1"};
  GameFrames frames{form};
  SearchPages pages{form};
  test::RecordingBoxes boxes;
  std::int64_t bytes = 0;
};

void markFirst(ButtonRow<6>& numbers, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) toggleMark(numbers[i]);
}

void searchForThree(benchmark::State& state) {
  Window window(state, historyFile);
  markFirst(window.pages.twoThree.numbers, 3);
  for (auto _ : state) Command38_Click(window.pages.twoThree, window.files.folder(), window.boxes);
  window.report(state);
}

void searchForTwo(benchmark::State& state) {
  Window window(state, historyFile);
  markFirst(window.pages.twoThree.numbers, 2);
  for (auto _ : state) Command38_Click(window.pages.twoThree, window.files.folder(), window.boxes);
  window.report(state);
}

void searchDoublePlayForTwo(benchmark::State& state) {
  Window window(state, doublePlayHistoryFile);
  markFirst(window.pages.twoThree.numbers, 2);
  for (auto _ : state) Command26_Click(window.pages.twoThree, window.files.folder(), window.boxes);
  window.report(state);
}

void countOneNumber(benchmark::State& state) {
  Window window(state, historyFile);
  for (auto _ : state) {
    Command30_Click(window.pages.played, window.frames, window.files.folder(), window.boxes);
  }
  window.report(state);
}

void fillPickers(benchmark::State& state) {
  Window window(state, historyFile);
  for (auto _ : state) fillDrawPickers(window.pages, window.files.folder(), powerBall);
  window.report(state);
}

void historySizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"draws", "shape"})->Unit(benchmark::kMillisecond);
  for (std::int64_t draws : {2'000, 1'000'000}) {
    for (bench::Shape shape : {bench::Shape::quoted, bench::Shape::bare, bench::Shape::mixed}) {
      benchmark->Args({draws, static_cast<std::int64_t>(shape)});
    }
  }
}

void doublePlaySizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"draws", "shape"})->Unit(benchmark::kMillisecond);
  for (std::int64_t draws : {2'000, 1'000'000}) {
    benchmark->Args({draws, static_cast<std::int64_t>(bench::Shape::doublePlay)});
  }
}

BENCHMARK(searchForThree)->Apply(historySizes);
BENCHMARK(searchForTwo)->Apply(historySizes);
BENCHMARK(searchDoublePlayForTwo)->Apply(doublePlaySizes);
BENCHMARK(countOneNumber)->Apply(historySizes);
BENCHMARK(fillPickers)->Apply(historySizes);

}  // namespace
}  // namespace tallywick

BENCHMARK_MAIN();
