// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/listed_line.h"

#include "core/text.h"
#include "ui/qt/parts/line_text.h"

#include <algorithm>

namespace tallywick {

namespace {

constexpr std::string_view star = "*";
constexpr std::size_t numbersOfPlay = 6;

bool isDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

bool isDigits(std::string_view text, std::size_t atMost) {
  return !text.empty() && text.size() <= atMost && std::ranges::all_of(text, isDigit);
}

bool isNumber(std::string_view field) {
  return isDigits(field, 2);
}

bool isDate(std::string_view field) {
  const std::size_t first = field.find('-');
  const std::size_t second = first == std::string_view::npos ? first : field.find('-', first + 1);
  return second != std::string_view::npos && isDigits(field.substr(0, first), 2) &&
         isDigits(field.substr(first + 1, second - first - 1), 2) && isDigits(field.substr(second + 1), 4);
}

using FieldsOfLine = std::vector<std::string_view>;

bool areNumbers(const FieldsOfLine& fields, std::size_t first) {
  return fields.size() >= first + numbersOfPlay &&
         std::all_of(fields.begin() + static_cast<std::ptrdiff_t>(first),
                     fields.begin() + static_cast<std::ptrdiff_t>(first + numbersOfPlay), isNumber);
}

void takeNumbers(const FieldsOfLine& fields, std::size_t first, ListedLine& line) {
  std::copy_n(fields.begin() + static_cast<std::ptrdiff_t>(first), line.white.size(), line.white.begin());
  line.extra = fields[first + line.white.size()];
}

/// Takes the mark and the amount from what follows the numbers.
void takeAmount(std::string_view rest, ListedLine& line) {
  rest = trimmed(rest);
  line.marked = rest.starts_with(star);
  line.amount = line.marked ? trimmed(rest.substr(star.size())) : rest;
}

/// Whether the fields behind a date are an amount as "40", "$1.2 Billion", or none.
bool isAmount(const FieldsOfLine& fields) {
  if (fields.size() == 1) return true;
  const bool begins = isDigit(fields[1].front()) || fields[1].front() == '$';
  return begins && std::none_of(fields.begin() + 2, fields.end(), isNumber);
}

ListedLine readAmountLine(const FieldsOfLine& fields, std::string_view rest) {
  ListedLine line;
  line.kind = LineKind::amount;
  line.date = fields[0];
  line.amount = trimmed(rest);
  line.marked = fields.size() > 1 && fields.back() == star;
  if (line.marked) line.amount = trimmed(line.amount.substr(0, line.amount.size() - star.size()));
  return line;
}

std::string_view behind(std::string_view line, std::string_view field) {
  return line.substr(static_cast<std::size_t>(field.data() - line.data()) + field.size());
}

/// What the columns have no place for must not get lost.
bool fits(const LineColumns& columns, const ListedLine& line) {
  const auto has = [&](LineField field) {
    return std::ranges::any_of(columns, [field](const LineColumn& column) { return column.field == field; });
  };
  switch (line.kind) {
    case LineKind::draw:
    case LineKind::play:
      return has(LineField::whites) && has(LineField::date) &&
             (has(LineField::amount) || (line.amount.empty() && !line.marked));
    case LineKind::savedPlay:
      return has(LineField::whites);
    case LineKind::amount:
      return has(LineField::amount) && !has(LineField::whites);
    case LineKind::other:
      break;
  }
  return false;
}

bool isTable(const LineColumns& columns) {
  return !columns.empty() && columns.front().field == LineField::ball;
}

}  // namespace

ListedLine readLine(std::string_view text) {
  const FieldsOfLine fields = piecesOf(text);
  ListedLine line;
  if (fields.empty()) return line;
  if (!isDate(fields[0])) {
    if (fields.size() != numbersOfPlay || !areNumbers(fields, 0)) return line;
    line.kind = LineKind::savedPlay;
    takeNumbers(fields, 0, line);
    return line;
  }
  if (!areNumbers(fields, 1)) {
    return isAmount(fields) ? readAmountLine(fields, behind(text, fields[0])) : line;
  }
  line.date = fields[0];
  takeNumbers(fields, 1, line);
  const auto gap = line.white[1].data() - (line.white[0].data() + line.white[0].size());
  line.kind = gap > 1 ? LineKind::play : LineKind::draw;
  takeAmount(behind(text, line.extra), line);
  return line;
}

std::size_t cellsIn(LineField field) {
  if (field == LineField::whites) return 5;
  return field == LineField::amount ? 2 : 1;
}

std::optional<std::vector<std::string>> cellsOf(const LineColumns& columns, std::string_view text,
                                                std::string_view matched, std::string_view prize) {
  if (isTable(columns)) {
    const FieldsOfLine fields = piecesOf(text);
    if (fields.size() != columns.size()) return std::nullopt;
    return std::vector<std::string>(fields.begin(), fields.end());
  }
  const ListedLine line = readLine(text);
  if (!fits(columns, line)) return std::nullopt;
  std::vector<std::string> cells;
  for (const LineColumn& column : columns) {
    switch (column.field) {
      case LineField::date:
        cells.emplace_back(line.date);
        break;
      case LineField::whites:
        cells.insert(cells.end(), line.white.begin(), line.white.end());
        break;
      case LineField::extra:
        cells.emplace_back(line.extra);
        break;
      case LineField::amount:
        cells.emplace_back(line.marked ? star : std::string_view());
        cells.emplace_back(line.amount);
        break;
      case LineField::prize:
        cells.emplace_back(prize);
        break;
      default:
        cells.emplace_back(matched);
    }
  }
  return cells;
}

std::vector<std::string> cellTitles(const LineColumns& columns) {
  std::vector<std::string> titles;
  for (const LineColumn& column : columns) {
    if (column.field == LineField::whites) {
      for (char number = '1'; number <= '5'; ++number) titles.push_back(std::string("Number ") + number);
      continue;
    }
    if (column.field == LineField::amount) titles.emplace_back("Mark");
    titles.push_back(column.title);
  }
  return titles;
}

}  // namespace tallywick
