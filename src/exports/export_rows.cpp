// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/export_rows.h"

#include "core/eras.h"
#include "core/os.h"
#include "core/text.h"
#include "exports/csv_table.h"

#include <algorithm>
#include <charconv>
#include <set>
#include <stdexcept>

namespace tallywick::exports {

namespace {

/// Why a row is refused.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

template <typename... Pieces>
[[noreturn]] void refuse(const Pieces&... pieces) {
  throw Refusal(join(pieces...));
}

std::size_t needed(const CsvTable& table, std::initializer_list<std::string_view> names) {
  const auto column = table.column(names);
  if (!column) throw std::runtime_error(join("there is no column \"", *names.begin(), "\""));
  return *column;
}

int numberOf(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
    refuse("\"", text, "\" is no number");
  }
  return number;
}

std::vector<int> numbersOf(std::string_view text) {
  std::vector<int> numbers;
  for (std::string_view rest = trimmed(text); !rest.empty(); rest = trimmed(rest)) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    numbers.push_back(numberOf(word));
    rest.remove_prefix(word.size());
  }
  return numbers;
}

void requireRange(int number, int highest, std::string_view what) {
  if (number >= 1 && number <= highest) return;
  refuse(what, " ", std::to_string(number), " is not from 1 to ", std::to_string(highest));
}

/// The balls of a draw by the game's rules on its day; the last number is the extra ball.
Balls ballsOf(std::vector<int> numbers, const Matrix& matrix) {
  if (numbers.size() != 6) refuse(std::to_string(numbers.size()), " numbers instead of 6");
  Balls balls{};
  balls.extra = numbers.back();
  std::sort(numbers.begin(), numbers.end() - 1);
  std::copy_n(numbers.begin(), balls.white.size(), balls.white.begin());
  for (int white : balls.white) requireRange(white, matrix.white, "the white ball");
  const auto twice = std::ranges::adjacent_find(balls.white);
  if (twice != balls.white.end()) refuse("the white ball ", std::to_string(*twice), " stands twice");
  requireRange(balls.extra, matrix.extra, "the extra ball");
  return balls;
}

/// The multiplier without a leading zero; "1" where there was none.
std::string multiplierOf(std::string_view text) {
  if (text.empty()) return "1";
  const int multiplier = numberOf(text);
  requireRange(multiplier, 10, "the multiplier");
  return std::to_string(multiplier);
}

Day dayOfRow(std::string_view text) {
  const std::optional<Day> day = parseDay(text);
  if (!day) refuse("\"", text, "\" is no date (MM/DD/YYYY)");
  return *day;
}

struct DrawColumns {
  DrawColumns(Game game, const CsvTable& table)
      : date(needed(table, {"Draw Date", "Date"})),
        numbers(needed(table, {"Winning Numbers"})),
        multiplier(needed(table, {"Multiplier"})) {
    if (game == Game::megaMillions) extra = needed(table, {"Mega Ball"});
    if (game == Game::powerBall) doublePlay = table.column({"Double Play Winning Numbers"});
  }

  std::size_t date;
  std::size_t numbers;
  std::size_t multiplier;
  std::optional<std::size_t> extra;
  std::optional<std::size_t> doublePlay;
};

DrawEntry drawOfRow(Game game, const DrawColumns& columns, const CsvTable::Row& row) {
  DrawEntry draw{dayOfRow(row.field(columns.date)), {}};
  const std::optional<Matrix> matrix = matrixOn(game, draw.day);
  if (!matrix) refuse("the game was not drawn yet on ", displayDate(draw.day));
  std::vector<int> numbers = numbersOf(row.field(columns.numbers));
  if (columns.extra) numbers.push_back(numberOf(row.field(*columns.extra)));
  draw.balls = ballsOf(std::move(numbers), *matrix);
  draw.multiplier = multiplierOf(row.field(columns.multiplier));
  if (columns.doublePlay && !row.field(*columns.doublePlay).empty()) {
    draw.doublePlay = ballsOf(numbersOf(row.field(*columns.doublePlay)), *matrix);
  }
  return draw;
}

/// Gives each row to `take`, and keeps those that it refuses.
template <typename Take>
std::vector<RefusedRow> takeRows(const CsvTable& table, Take take) {
  std::vector<RefusedRow> refused;
  std::set<Day> days;
  for (const CsvTable::Row& row : table.rows()) {
    try {
      take(row, [&](Day day) {
        if (!days.insert(day).second) refuse("a second row for ", displayDate(day));
      });
    } catch (const Refusal& refusal) {
      refused.push_back({row.line, refusal.what()});
    }
  }
  return refused;
}

}  // namespace

ImportedDraws importDraws(Game game, const CsvTable& table) {
  ImportedDraws imported;
  const DrawColumns columns(game, table);
  imported.refused = takeRows(table, [&](const CsvTable::Row& row, auto once) {
    DrawEntry draw = drawOfRow(game, columns, row);
    once(draw.day);
    imported.draws.push_back(std::move(draw));
  });
  std::ranges::sort(imported.draws, std::greater(), &DrawEntry::day);
  return imported;
}

ImportedAmounts importAmounts(const CsvTable& table) {
  ImportedAmounts imported;
  const std::size_t date = needed(table, {"Draw Date", "Date"});
  const std::size_t amount = needed(table, {"Amount"});
  const std::size_t marks = needed(table, {"Mark Count", "Marks"});
  imported.refused = takeRows(table, [&](const CsvTable::Row& row, auto once) {
    const Day day = dayOfRow(row.field(date));
    const std::string_view text = row.field(amount);
    if (text.find_first_of("\"\r\n") != std::string_view::npos)
      refuse("the amount holds a quote or a line end");
    const std::string_view count = row.field(marks);
    const int number = count.empty() ? 0 : numberOf(count);
    once(day);
    imported.amounts.push_back({day, std::string(text), number});
  });
  std::ranges::sort(imported.amounts, std::greater(), &AmountEntry::day);
  return imported;
}

std::vector<Day> missingDraws(Game game, const std::vector<DrawEntry>& draws) {
  if (draws.empty()) return {};
  std::set<Day> drawn;
  for (const DrawEntry& draw : draws) drawn.insert(draw.day);
  std::vector<Day> days = drawDays(game, draws.back().day, draws.front().day);
  std::erase_if(days, [&](Day day) { return drawn.contains(day); });
  return days;
}

}  // namespace tallywick::exports
