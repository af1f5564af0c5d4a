// SPDX-License-Identifier: GPL-3.0-or-later
// What a line of a list is: a draw, a play, an amount or plain text. Lists show, save and print the first
// three in columns. Without any window.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

enum class LineKind : std::uint8_t {
  draw,       ///< a date and six numbers with a blank between; what follows is the draw's amount
  play,       ///< a date and six numbers with two blanks between
  savedPlay,  ///< six numbers
  amount,     ///< a date and an amount, which may be missing
  other
};

/// The pieces of a line as views into it.
struct ListedLine {
  LineKind kind = LineKind::other;
  std::string_view date;
  std::array<std::string_view, 5> white;
  std::string_view extra;
  /// A star is between the numbers and the amount, or behind the amount.
  bool marked = false;
  std::string_view amount;
};

ListedLine readLine(std::string_view line);

enum class LineField : std::uint8_t {
  date,
  whites,
  extra,
  amount,   ///< with its mark
  matched,  ///< what a play matched
  prize,    ///< what it won
  ball,     ///< of a table: a number
  figure    ///< of a table: anything else
};

/// What amounts are in: record books have "40" for forty million dollars.
inline constexpr std::string_view amountUnit = "$ million";

struct LineColumn {
  LineField field;
  std::string title;

  bool operator==(const LineColumn&) const = default;
};
/// A table's begin with a ball: their lines are fields with blanks between, one a column.
using LineColumns = std::vector<LineColumn>;

/// How many cells a column has: five for the white balls, two for an amount and its mark.
std::size_t cellsIn(LineField field);

/// The cells of a line in the order of the columns; none where the line does not fit them and is text.
/// `matched` and `prize` are the texts of those columns.
std::optional<std::vector<std::string>> cellsOf(const LineColumns& columns, std::string_view line,
                                                std::string_view matched = {}, std::string_view prize = {});
/// The title of each cell.
std::vector<std::string> cellTitles(const LineColumns& columns);

}  // namespace tallywick
