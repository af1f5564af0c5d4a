// SPDX-License-Identifier: GPL-3.0-or-later
// Draws and amounts that a player types in: checking them, and what a game folder becomes with them.
#pragma once

#include "core/games.h"
#include "exports/entries.h"
#include "exports/merge.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tallywick {
class DataFolder;
}

namespace tallywick::exports {

/// A draw as somebody types it. Outer blanks do not count.
struct TypedDraw {
  /// MM-DD-YYYY or MM/DD/YYYY.
  std::string date = {};
  /// The five white balls in any order, with blanks or commas between.
  std::string numbers = {};
  std::string extra = {};
  /// Empty where there was none.
  std::string multiplier = {};
  /// The second draw's five white balls and its extra ball, PowerBall's alone; empty where it is not known.
  std::string doublePlay = {};
  /// As it is to be shown; empty where it is not known.
  std::string amount = {};
  /// How many tickets won it; empty is 0.
  std::string marks = {};
};

enum class TypedField { date, numbers, extra, multiplier, doublePlay, amount, marks };

/// What is wrong with something typed, and in which field.
class TypingError : public std::runtime_error {
 public:
  TypingError(TypedField itsField, const std::string& text) : std::runtime_error(text), field(itsField) {}

  TypedField field;
};

struct CheckedDraw {
  DrawEntry draw;
  /// None where none was typed.
  std::optional<AmountEntry> amount;
};

/// The draw as numbers. TypingError where the rules of its day do not allow it: the numbers of its era, the
/// draw days, no draw after `today`, Double Play only since it exists.
CheckedDraw checkedDraw(Game game, const TypedDraw& typed, Day today);

/// An amount of the draw of `day`; a blank one means not known. TypingError.
AmountEntry checkedTypedAmount(Day day, std::string_view amount, std::string_view marks);

/// What becomes of a draw that the folder has already with other numbers.
enum class KnownDraw { stays, isReplaced };

/// The folder has the draw with other numbers, and was not asked to replace them.
class DrawIsKnown : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The draws that were typed in and that no export has had, newest first.
std::vector<Day> typedDraws(const GameFiles& files);

// Each changes a game's folder under its lock, as one change; what changes nothing writes nothing. Beside
// what is said below they raise std::runtime_error where the game's draws are made up, and RuntimeError where
// a file cannot be read or written, LockedByAnother where another program is at work in the folder.

/// Adds a draw, and its amount where it has one. DrawIsKnown; std::runtime_error where the game has no draws
/// yet.
MergeReport addDraw(const DataFolder& folder, Game game, const CheckedDraw& typed, KnownDraw known);
/// Removes a typed draw and its amount. std::runtime_error where the draw is not there, or was not typed.
MergeReport removeDraw(const DataFolder& folder, Game game, Day day);
/// Sets amounts of the fifteen newest draws; a blank one becomes not known. std::runtime_error for another
/// day.
MergeReport setAmounts(const DataFolder& folder, Game game, const std::vector<AmountEntry>& amounts);

}  // namespace tallywick::exports
