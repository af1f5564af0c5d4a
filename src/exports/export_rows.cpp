// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/export_rows.h"

#include "core/eras.h"
#include "core/text.h"
#include "exports/csv_reader.h"
#include "exports/entry_checks.h"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <utility>

namespace tallywick::exports {

namespace {

template <typename... Pieces>
[[noreturn]] void refuse(const Pieces&... pieces) {
  throw std::runtime_error(join(pieces...));
}

std::size_t needed(const CsvReader& rows, std::initializer_list<std::string_view> names) {
  const auto column = rows.column(names);
  if (!column) throw std::runtime_error(join("there is no column \"", *names.begin(), "\""));
  return *column;
}

struct DrawColumns {
  DrawColumns(Game game, const CsvReader& rows)
      : date(needed(rows, {"Draw Date", "Date"})),
        numbers(needed(rows, {"Winning Numbers"})),
        multiplier(needed(rows, {"Multiplier"})) {
    extra = rows.column({"Mega Ball"});
    if (game == Game::megaMillions && !extra)
      refuse("there is no column \"Mega Ball\"; these look like the draws of PowerBall");
    if (game == Game::powerBall && extra)
      refuse("these are the draws of Mega Millions: there is a column \"Mega Ball\"");
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
  std::vector<int> numbers = checkedNumbers(row.field(columns.numbers));
  if (columns.extra) numbers.push_back(checkedNumber(row.field(*columns.extra)));
  DrawEntry draw{day, checkedBalls(game, day, std::move(numbers), notice)};
  draw.multiplier = checkedMultiplier(row.field(columns.multiplier));
  if (columns.doublePlay && !row.field(*columns.doublePlay).empty()) {
    draw.doublePlay = checkedBalls(game, day, checkedNumbers(row.field(*columns.doublePlay)), notice);
  }
  return draw;
}

/// Takes note of a refused row.
void addRefused(RefusedRows& refused, RefusedRow row, std::optional<Day> day, Day today) {
  ++refused.count;
  if (day && *day > today) refused.areLater = true;
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
      day = parseDay(row.field(dateColumn));
      const Day date = checkedDay(row.field(dateColumn), today);
      if (row.isCut) refuse("the row has an opening quote and no closing one");
      if (!matrixOn(game, date)) refuse("the game was not drawn yet on ", displayDate(date));
      if (days.contains(date)) refuse("a second row for ", displayDate(date));
      if (take(row, date)) days.insert(date);
    } catch (const std::runtime_error& refusal) {
      addRefused(refused, {row.line, visible(refusal.what(), 80)}, day, today);
    }
  }
  return refused;
}

}  // namespace

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
    AmountEntry entry = checkedAmount(day, text, row.field(marks));
    if (text.empty()) return false;
    exported.amounts.push_back(std::move(entry));
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
