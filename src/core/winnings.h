// SPDX-License-Identifier: GPL-3.0-or-later
// The winnings files: the prize amount announced for each draw.
#pragma once

#include "core/games.h"
#include "core/sequential_reader.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tallywick {

class DataFolder;

/// Month, day, year, amount, mark count.
inline constexpr std::size_t winningsFields = 5;

/// One line a record for the amounts list: a blank, the display date, four blanks, the amount without outer
/// blanks, and the mark "   * " after two blanks where the mark count is 1 or more. The file's last record is
/// not listed. Error 13 where a mark count is not a number, 62 where the file is empty; the lines before it
/// have been given to `add`.
void listAmounts(const DataFolder& folder, const GameInfo& game,
                 const std::function<void(std::string_view)>& add);

/// The amounts of a winnings file by draw. Before the file is read every draw has a blank amount.
class AmountLookup {
 public:
  struct Amount {
    std::string_view text;
    /// " * " where the text is exactly the game's base amount, else three blanks.
    std::string_view mark;
  };

  explicit AmountLookup(const GameInfo& game) : game_(game) {}

  /// Reads the game's winnings file. An empty file is error 62; what precedes an error has been taken.
  void read(const DataFolder& folder);

  /// The trimmed amount of the last record with this date key, not looking at the file's last record. A draw
  /// without a record gets the file's first amount, untrimmed.
  Amount of(const std::string& dateKey) const;

 private:
  GameInfo game_;
  std::optional<SequentialReader> reader_;
  std::string_view firstAmount_;
  std::unordered_map<std::string, std::string_view> amounts_;
};

}  // namespace tallywick
