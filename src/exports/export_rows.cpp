// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/export_rows.h"

#include "core/eras.h"
#include "core/text.h"
#include "exports/csv_reader.h"

#include <algorithm>
#include <array>
#include <set>
#include <stdexcept>
#include <utility>

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

/// At most `most` characters of `text`, with what a terminal would not show as a hexadecimal number.
std::string visible(std::string_view text, std::size_t most) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string shown;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    if (byte >= ' ' && byte < 0x7F) {
      shown += letter;
    } else {
      shown.append("\\x").append(1, digits[byte >> 4U]).append(1, digits[byte & 15U]);
    }
    if (shown.size() > most) return shown.substr(0, most - 3).append("...");
  }
  return shown;
}

/// A field as a refusal quotes it.
std::string quoted(std::string_view field) {
  return join("\"", visible(field, 32), "\"");
}

std::size_t needed(const CsvReader& rows, std::initializer_list<std::string_view> names) {
  const auto column = rows.column(names);
  if (!column) throw std::runtime_error(join("there is no column \"", *names.begin(), "\""));
  return *column;
}

int numberOf(std::string_view text) {
  const auto number = wholeNumber<int>(text);
  if (!number) refuse(quoted(text), " is no number");
  return *number;
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

/// The multiplier without a leading zero; "1" where there was none.
std::string multiplierOf(std::string_view text) {
  if (text.empty()) return "1";
  const int multiplier = numberOf(text);
  requireRange(multiplier, 10, "the multiplier");
  return std::to_string(multiplier);
}

Day dayOfRow(std::string_view text) {
  const std::optional<Day> day = parseDay(text);
  if (!day) refuse(quoted(text), " is no date (MM/DD/YYYY)");
  return *day;
}

struct DrawColumns {
  DrawColumns(Game game, const CsvReader& rows)
      : date(needed(rows, {"Draw Date", "Date"})),
        numbers(needed(rows, {"Winning Numbers"})),
        multiplier(needed(rows, {"Multiplier"})) {
    if (game == Game::megaMillions) extra = needed(rows, {"Mega Ball"});
    if (game == Game::powerBall) doublePlay = rows.column({"Double Play Winning Numbers"});
  }

  std::size_t date;
  std::size_t numbers;
  std::size_t multiplier;
  std::optional<std::size_t> extra;
  std::optional<std::size_t> doublePlay;
};

DrawEntry drawOfRow(Game game, Day day, const DrawColumns& columns, const CsvReader::Row& row,
                    std::string& notice) {
  std::vector<int> numbers = numbersOf(row.field(columns.numbers));
  if (columns.extra) numbers.push_back(numberOf(row.field(*columns.extra)));
  DrawEntry draw{day, checkedBalls(game, day, std::move(numbers), notice)};
  draw.multiplier = multiplierOf(row.field(columns.multiplier));
  if (columns.doublePlay && !row.field(*columns.doublePlay).empty()) {
    draw.doublePlay = checkedBalls(game, day, numbersOf(row.field(*columns.doublePlay)), notice);
  }
  return draw;
}

/// Takes note of a refused row.
void addRefused(RefusedRows& refused, RefusedRow row, std::optional<Day> day) {
  ++refused.count;
  if (day && (!refused.newestDay || *day > *refused.newestDay)) {
    refused.newestDay = day;
    refused.newest = row;
  }
  if (refused.first.size() < RefusedRows::mostKept) refused.first.push_back(std::move(row));
}

/// Gives each row with its day to `take`, and keeps those that it refuses. A row that `take` returns false
/// for is passed over.
template <typename Take>
RefusedRows takeRows(Game game, CsvReader& rows, std::size_t dateColumn, Day today, Take take) {
  RefusedRows refused;
  std::set<Day> days;
  CsvReader::Row row;
  while (rows.next(row)) {
    std::optional<Day> day;
    try {
      const Day date = dayOfRow(row.field(dateColumn));
      if (date > today) refuse(displayDate(date), " is later than today, ", displayDate(today));
      day = date;
      if (row.isCut) refuse("the row has an opening quote and no closing one");
      if (!matrixOn(game, date)) refuse("the game was not drawn yet on ", displayDate(date));
      if (days.contains(date)) refuse("a second row for ", displayDate(date));
      if (take(row, date)) days.insert(date);
    } catch (const std::runtime_error& refusal) {
      addRefused(refused, {row.line, visible(refusal.what(), 80)}, day);
    }
  }
  return refused;
}

}  // namespace

Balls checkedBalls(Game game, Day day, std::vector<int> numbers, std::string& notice) {
  if (numbers.size() != 6) refuse(std::to_string(numbers.size()), " numbers instead of 6");
  const Matrix known = matrixOn(game, day).value();
  const bool mayHaveChanged = day >= erasOf(game).back().from;
  const Matrix matrix = mayHaveChanged ? Matrix{99, 99} : known;
  Balls balls{};
  balls.extra = numbers.back();
  std::sort(numbers.begin(), numbers.end() - 1);
  std::copy_n(numbers.begin(), balls.white.size(), balls.white.begin());
  for (int white : balls.white) requireRange(white, matrix.white, "the white ball");
  const auto twice = std::ranges::adjacent_find(balls.white);
  if (twice != balls.white.end()) refuse("the white ball ", std::to_string(*twice), " occurs twice");
  requireRange(balls.extra, matrix.extra, "the extra ball");
  if (balls.white.back() > known.white || balls.extra > known.extra) {
    notice = join(displayDate(day), " has a number beyond ", std::to_string(known.white), " or ",
                  std::to_string(known.extra), ": the game's rules seem to have changed");
  }
  return balls;
}

ExportedDraws readDraws(Game game, CsvReader& rows, Day today) {
  ExportedDraws exported;
  const DrawColumns columns(game, rows);
  std::optional<Day> firstNew;
  std::string firstNotice;
  exported.refused = takeRows(game, rows, columns.date, today, [&](const CsvReader::Row& row, Day day) {
    std::string notice;
    exported.draws.push_back(drawOfRow(game, day, columns, row, notice));
    if (!notice.empty() && (!firstNew || day < *firstNew)) {
      firstNew = day;
      firstNotice = std::move(notice);
    }
    return true;
  });
  if (firstNew) exported.notices.push_back(std::move(firstNotice));
  std::ranges::sort(exported.draws, std::greater(), &DrawEntry::day);
  return exported;
}

ExportedAmounts readAmounts(Game game, CsvReader& rows, Day today) {
  ExportedAmounts exported;
  const std::size_t date = needed(rows, {"Draw Date", "Date"});
  const std::size_t amount = needed(rows, {"Amount"});
  const std::size_t marks = needed(rows, {"Mark Count", "Marks"});
  exported.refused = takeRows(game, rows, date, today, [&](const CsvReader::Row& row, Day day) {
    const std::string_view text = row.field(amount);
    const auto isUnfit = [](char letter) {
      return letter == '"' || static_cast<unsigned char>(letter) < ' ';
    };
    if (std::ranges::any_of(text, isUnfit)) refuse("the amount contains a quote or a control character");
    const std::string_view count = row.field(marks);
    const int number = count.empty() ? 0 : numberOf(count);
    if (text.empty()) return false;
    exported.amounts.push_back({day, std::string(text), number});
    return true;
  });
  std::ranges::sort(exported.amounts, std::greater(), &AmountEntry::day);
  return exported;
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
