// SPDX-License-Identifier: GPL-3.0-or-later
// Play records and the play files that contain them.
#pragma once

#include "core/games.h"
#include "core/sequential_reader.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class DataFolder;

/// Draw date, five main numbers, extra ball, decade pattern.
inline constexpr std::size_t playFields = 8;

/// Where the six numbers are in Play::itemText(), from 1.
inline constexpr std::array<std::size_t, 6> numbersInPlayItem = {19, 23, 27, 31, 35, 39};

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
  /// Two blanks, the date, six blanks, the six numbers with two blanks between: how lists show a play.
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

/// The plays of a text that are each within one line. A record that lacks fields goes on in the next line and
/// takes the numbers of another play for its own: it is no play.
struct WholePlays {
  /// Views into the text, those behind a torn record among them.
  std::vector<Play> plays;
  /// Where each record ends in the text, behind its separator.
  std::vector<std::size_t> ends;
  /// How many of them come before the first torn record.
  std::size_t beforeTorn = 0;
  /// The line, from 1, of the first record that goes on in the next line.
  std::optional<std::size_t> brokenLine;
  /// Where the first torn record is, which goes on in the next line or is cut short at the end; empty where
  /// each is whole.
  std::string torn;

  std::size_t end() const { return ends.empty() ? 0 : ends.back(); }
};

/// `name` is the file's.
WholePlays wholePlays(std::string_view text, const std::string& name);

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
