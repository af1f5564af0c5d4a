// SPDX-License-Identifier: GPL-3.0-or-later
// Play records and the play files that contain them.
#pragma once

#include "core/games.h"
#include "core/sequential_reader.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class DataFolder;

/// Draw date, five main numbers, extra ball, decade pattern.
inline constexpr std::size_t playFields = 8;

/// A record with this date is no real play: it is kept and counted, but never listed or scored.
inline constexpr std::string_view noPlayDate = "11-11-1111";

/// One play as views into its record.
struct Play {
  /// MM-DD-YYYY.
  std::string_view date;
  std::array<std::string_view, 5> main;
  std::string_view extra;
  /// How many main numbers fall in each decade, a digit a decade.
  std::string_view decades;

  bool isListed() const { return date != noPlayDate; }
  /// MMDDYYYY, as Draw::dateKey() makes it: characters 1-2, 4-5 and from 7 of the date.
  std::string dateKey() const;
  /// Two blanks, the date, six blanks, the six numbers with two blanks between: how lists show a play. The
  /// numbers are at 19, 23, 27, 31, 35 and 39.
  std::string itemText() const;
  /// In the layout of Draw::line().
  std::string drawLine() const;
};

Play playOf(const Fields<playFields>& record);

/// The decade pattern of five main numbers: a digit for 01 to 09, then one a decade up to the game's last
/// number.
std::string decadePattern(const GameInfo& game, const std::array<int, 5>& main);

/// Adds `play` to `text` as the record book writes records: every field in double quotes, CR LF at the end.
void appendRecord(std::string& text, const Play& play);

/// Opens a play file for use record by record. A missing file reads as an empty one.
SequentialReader openPlays(const DataFolder& folder, std::string_view written);

/// A play file, read whole. A missing file contains no plays.
class PlayFile {
 public:
  PlayFile(const DataFolder& folder, std::string_view written);
  PlayFile(PlayFile&&) = default;
  PlayFile& operator=(PlayFile&&) = default;

  /// All records in file order, those that are never listed among them.
  const std::vector<Play>& plays() const { return plays_; }
  bool empty() const { return plays_.empty(); }
  /// The bytes of the file, unchanged.
  std::string_view text() const { return reader_.text(); }

 private:
  SequentialReader reader_;
  std::vector<Play> plays_;
};

}  // namespace tallywick
