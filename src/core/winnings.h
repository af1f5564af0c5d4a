// SPDX-License-Identifier: GPL-3.0-or-later
// The winnings files: the prize amount announced for each draw.
#pragma once

#include "core/draws.h"
#include "core/games.h"

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallywick {

class DataFolder;

/// Month, day, year, amount, mark count.
inline constexpr std::size_t winningsFields = 5;

/// Gives each record but the last one to `use`, and whether its mark count is 1 or more. Error 13 where a
/// mark count is not a number, 62 where the file is empty; the records before it have been given to `use`.
void forEachAmount(const DataFolder& folder, const GameInfo& game,
                   const std::function<void(const RecordView<winningsFields>& record, bool isMarked)>& use);

/// The amounts of some draws in a winnings file. Before the file is read every draw has a blank amount.
class AmountLookup {
 public:
  struct Amount {
    std::string_view text;
    /// " * " where the text is exactly the game's base amount, else three blanks.
    std::string_view mark;
  };

  /// `dateKeys` are those of the draws that are asked for.
  AmountLookup(const GameInfo& game, const std::vector<std::string>& dateKeys);

  /// Reads the game's winnings file. An empty file is error 62; what precedes an error has been taken.
  void read(const DataFolder& folder);

  /// The trimmed amount of the last record with this date key, not looking at the file's last record. A draw
  /// without a record gets the file's first amount, untrimmed.
  Amount of(const std::string& dateKey) const;

 private:
  GameInfo game_;
  WantedDates wanted_;
  std::string firstAmount_;
  std::unordered_map<std::string, std::string> amounts_;
};

}  // namespace tallywick
