// SPDX-License-Identifier: GPL-3.0-or-later
// Draw records and the texts that are built from them.
#pragma once

#include "core/day.h"
#include "core/sequential_reader.h"

#include <array>
#include <bitset>
#include <optional>
#include <string>
#include <string_view>

namespace tallywick {

/// Month, day, year, five white balls, extra ball, and a field that the server defines.
inline constexpr std::size_t drawFields = 10;
/// Date, main draw, two fields, the Double Play draw's six numbers, a field.
inline constexpr std::size_t doublePlayFields = 18;

/// Where a record, of either history, has the main draw's five white balls and the extra ball; from 0.
inline constexpr std::size_t mainBalls = 3;
/// The field of the main history that the server defines, a multiplier by now.
inline constexpr std::size_t multiplierField = 9;
/// Where a Double Play record has the second draw's balls.
inline constexpr std::size_t doublePlayBalls = 11;

/// Where the six numbers are in Draw::line() behind a leading blank, from 1, where each has two digits.
inline constexpr std::array<std::size_t, 6> numbersInDrawLine = {16, 19, 22, 25, 28, 33};

/// How many draws the displays read without looking for the end of the file.
inline constexpr std::size_t shownDraws = 15;
/// How many draws the charts read in the same way.
inline constexpr std::size_t chartedDraws = 100;

/// One draw as views into its record. Numbers stay text and are compared as text.
struct Draw {
  std::string_view month;
  std::string_view day;
  std::string_view year;
  std::array<std::string_view, 5> white;
  std::string_view extra;

  /// None where the date is no day of the calendar.
  std::optional<Day> drawnOn() const { return parseDay(month, day, year); }
  /// A draw whose numbers are not known is kept as a record of blanks.
  bool hasNumbers() const;
  /// MMDDYYYY: the key that finds a draw's amount.
  std::string dateKey() const;
  /// MM-DD-YYYY.
  std::string displayDate() const;
  /// Display date, four blanks, the white balls with a blank between, three blanks, the extra ball.
  std::string line() const;
  /// Blanks before the blank of the first white ball, and before the extra ball.
  struct Gaps {
    std::size_t date = 3;
    std::size_t extra = 3;
  };
  std::size_t lineSize(Gaps gaps) const;
  /// Writes the line, or one with other gaps, of lineSize() characters.
  void writeLine(char* to, Gaps gaps) const;
};

/// The draw of a record, Fields or RecordView, whose white balls begin at field `first` (from 0); the extra
/// ball follows them.
template <typename Record>
Draw drawAt(const Record& record, std::size_t first) {
  return {record[0],
          record[1],
          record[2],
          {record[first], record[first + 1], record[first + 2], record[first + 3], record[first + 4]},
          record[first + 5]};
}

/// Tells most dates apart from those that are looked for without building a text of each: a history of a
/// million draws is looked through for a few.
class WantedDates {
 public:
  /// MMDDYYYY or MM-DD-YYYY.
  void add(std::string_view date) { wanted_.set(mixed(0, date) % wanted_.size()); }
  /// False where no such date has been added.
  bool mayHave(std::string_view month, std::string_view day, std::string_view year) const {
    return wanted_.test(mixed(mixed(mixed(0, month), day), year) % wanted_.size());
  }

 private:
  static std::size_t mixed(std::size_t before, std::string_view text) {
    for (const char letter : text) {
      if (letter != '-') before = before * 31 + static_cast<unsigned char>(letter);
    }
    return before;
  }

  std::bitset<4096> wanted_;
};

Draw drawOf(const Fields<drawFields>& record);
Draw doublePlayDrawOf(const Fields<doublePlayFields>& record);

}  // namespace tallywick
