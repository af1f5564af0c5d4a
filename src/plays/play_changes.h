// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of the play files that the player asks for by hand. Each is one journalled change of the committed
// and the played plays with their copies, and can be taken back. Whatever else the files contain, bytes that
// cannot be understood among it, stays where it is.
#pragma once

#include "core/games.h"

#include <cstddef>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class Clock;
class DataFolder;

/// Both play files of a game as they were read. A missing file is an empty text.
struct PlayTexts {
  std::string committed;
  std::string played;

  bool operator==(const PlayTexts&) const = default;
};

PlayTexts readPlayTexts(const GameInfo& game, const DataFolder& folder);

/// The play files are no longer what the player was shown. Nothing has been changed.
class PlaysChangedMeanwhile : public std::runtime_error {
 public:
  PlaysChangedMeanwhile();
};

/// A play by its place.
struct PlayPlace {
  /// Committed or played.
  PlaySlot file;
  /// The number of its record, from 1.
  std::size_t record;

  bool operator==(const PlayPlace&) const = default;
};

/// A change that was made, with what it takes to undo it.
struct PlayChange {
  /// For the player, as "2 plays removed".
  std::string what;
  PlayTexts before;
  PlayTexts after;
  /// The copies "QZR6PWR1.Sav" and "QZR6PWR2.Sav" before it; none where there was no such file.
  std::optional<std::string> committedCopy;
  std::optional<std::string> playedCopy;
};

/// A dated copy of a play file.
struct PlayCopy {
  std::string name;
  /// YYYY-MM-DD HHMMSS.
  std::string date;
  std::size_t plays;
  /// How many of them neither play file contains now.
  std::size_t missing;
};

/// Makes the changes of one game's play files. Each takes the lock of the game's folder first
/// (LockedByAnother where another program has it) and finishes what an earlier change left behind. Plays that
/// are in neither file after a change stay in a dated copy.
class PlayChanges {
 public:
  PlayChanges(const GameInfo& game, const DataFolder& folder, const Clock& clock)
      : game_(game), folder_(folder), clock_(clock) {}

  /// Raises PlaysChangedMeanwhile where the files are not `shown`; so do all that take it.
  PlayChange remove(const PlayTexts& shown, std::span<const PlayPlace> plays) const;

  /// Moves committed plays, by the numbers of their records, to their days' places among the played ones.
  PlayChange moveToPlayed(const PlayTexts& shown, std::span<const std::size_t> records) const;

  /// Adds a play, a whole record, to the plays of its day in `file`. Whatever the files contain, none goes.
  PlayChange add(PlaySlot file, std::string_view record) const;

  /// The dated copies of both files, newest first.
  std::vector<PlayCopy> copies() const;

  /// Adds the plays of a copy that are in neither file: the drawn ones to the played plays, those that wait
  /// to the committed ones, any other to the file that the copy is of. None goes. std::runtime_error where
  /// nothing is missing.
  PlayChange bringBack(const PlayTexts& shown, std::string_view copy) const;

  /// Makes the files and their copies what they were before `change`. Raises PlaysChangedMeanwhile where the
  /// files are no longer what it made of them.
  PlayChange undo(const PlayChange& change) const;

 private:
  const GameInfo& game_;
  const DataFolder& folder_;
  const Clock& clock_;
};

}  // namespace tallywick
