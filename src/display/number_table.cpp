// SPDX-License-Identifier: GPL-3.0-or-later
#include "display/number_table.h"

#include "core/draws.h"
#include "core/eras.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <limits>

namespace tallywick {

namespace {

constexpr std::size_t whitesOfDraw = 5;

/// Counts the numbers from 1 on that are drawn from ranges, several a draw.
class Counter {
 public:
  explicit Counter(std::size_t numbersOfDraw) : numbersOfDraw_(numbersOfDraw) {}

  void beginDraw(int range) {
    ++draws_;
    const auto size = static_cast<std::size_t>(std::max(range, 0));
    if (size > counts_.size()) grow(size);
    ++drawsFrom_[size - 1].all;
    if (draws_ <= chartedDraws) ++drawsFrom_[size - 1].recent;
    range_ = range;
  }

  void take(std::string_view text, Day day) {
    const auto number = wholeNumber<int>(trimmed(text));
    if (!number || *number < 1 || *number > range_) return;
    NumberCount& count = counts_[static_cast<std::size_t>(*number) - 1];
    ++count.all;
    if (draws_ <= chartedDraws) ++count.recent;
    if (count.last) return;
    count.last = day;
    count.since = draws_ - 1;
  }

  std::vector<NumberCount> counts() const {
    std::vector<NumberCount> counts = counts_;
    double all = 0;
    double recent = 0;
    // A number has a chance in the draws from its own range and from every larger one.
    for (std::size_t i = counts.size(); i-- > 0;) {
      const double chance = static_cast<double>(numbersOfDraw_) / static_cast<double>(i + 1);
      all += chance * static_cast<double>(drawsFrom_[i].all);
      recent += chance * static_cast<double>(drawsFrom_[i].recent);
      counts[i].allByChance = all;
      counts[i].recentByChance = recent;
      if (!counts[i].last) counts[i].since = draws_;
    }
    return counts;
  }

 private:
  struct Draws {
    std::size_t all = 0;
    std::size_t recent = 0;
  };

  void grow(std::size_t size) {
    drawsFrom_.resize(size);
    while (counts_.size() < size) {
      counts_.emplace_back();
      counts_.back().number = static_cast<int>(counts_.size());
    }
  }

  std::size_t numbersOfDraw_;
  std::size_t draws_ = 0;
  int range_ = 0;
  std::vector<NumberCount> counts_;
  /// By the highest number of the range, from 1.
  std::vector<Draws> drawsFrom_;
};

void forEachDraw(SequentialReader& reader, DrawHistory history, const std::function<void(const Draw&)>& use) {
  if (history == DrawHistory::main) {
    forEachRecord<drawFields>(reader, [&](const Fields<drawFields>& record) { use(drawOf(record)); });
  } else {
    forEachRecord<doublePlayFields>(
        reader, [&](const Fields<doublePlayFields>& record) { use(doublePlayDrawOf(record)); });
  }
}

/// What a column is sorted by; a number that never came up is before all days.
double valueIn(const NumberCount& count, NumberColumn column) {
  switch (column) {
    case NumberColumn::number:
      return count.number;
    case NumberColumn::recent:
      return static_cast<double>(count.recent);
    case NumberColumn::recentByChance:
      return count.recentByChance;
    case NumberColumn::all:
      return static_cast<double>(count.all);
    case NumberColumn::allByChance:
      return count.allByChance;
    case NumberColumn::since:
      return static_cast<double>(count.since);
    case NumberColumn::last:
      break;
  }
  return count.last ? count.last->number() : std::numeric_limits<double>::lowest();
}

}  // namespace

NumberTable countNumbers(Game game, DrawHistory history, std::string_view draws) {
  NumberTable table;
  Counter white(whitesOfDraw);
  Counter extra(1);
  SequentialReader reader(draws, std::string(history == DrawHistory::main ? drawsFile : doublePlayFile));
  try {
    forEachDraw(reader, history, [&](const Draw& draw) {
      const std::optional<Day> day = draw.hasNumbers() ? draw.drawnOn() : std::nullopt;
      const std::optional<Matrix> matrix = day ? matrixOn(game, *day) : std::nullopt;
      if (!matrix) return;
      ++table.draws;
      white.beginDraw(matrix->white);
      extra.beginDraw(matrix->extra);
      for (std::string_view number : draw.white) white.take(number, *day);
      extra.take(draw.extra, *day);
    });
  } catch (const RuntimeError& error) {
    if (!error.is(ErrorNumber::inputPastEnd)) throw;
    table.torn = error.where();
  }
  table.white = white.counts();
  table.extra = extra.counts();
  return table;
}

NumberTable countNumbers(const GameInfo& game, DrawHistory history, const DataFolder& folder) {
  const SequentialReader reader(folder,
                                inFolder(game, history == DrawHistory::main ? drawsFile : doublePlayFile));
  return countNumbers(game.game, history, reader.text());
}

void sortNumbers(std::vector<NumberCount>& counts, NumberColumn column, bool descending) {
  std::ranges::sort(counts, {}, &NumberCount::number);
  const double sign = descending ? -1 : 1;
  std::ranges::stable_sort(counts, {},
                           [&](const NumberCount& count) { return sign * valueIn(count, column); });
}

std::string numberLine(const NumberCount& count) {
  std::array<char, 128> line{};
  std::snprintf(line.data(), line.size(), " %02d  %4zu  %6.1f  %6zu  %8.1f  %6zu  %s", count.number,
                count.recent, count.recentByChance, count.all, count.allByChance, count.since,
                count.last ? displayDate(*count.last).c_str() : "never");
  return line.data();
}

}  // namespace tallywick
