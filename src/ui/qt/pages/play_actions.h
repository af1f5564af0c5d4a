// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of the plays as the windows make them: errors become messages, the lists of plays are shown anew,
// and the changes of each game can be undone, the last one first.
#pragma once

#include "plays/judged_plays.h"

#include <QString>
#include <functional>
#include <map>
#include <vector>

namespace tallywick {

class FormWindow;
class HandlerRunner;
class MainForm;

class PlayActions {
 public:
  PlayActions(MainForm& form, FormWindow& window) : form_(form), window_(window) {}

  /// The game on show.
  const GameInfo& game() const;
  const DataFolder& folder() const;
  /// The plays of the game on show. Raises what judgePlays() raises.
  std::shared_ptr<const JudgedPlays> plays() const;
  HandlerRunner& runner() const;
  /// What a play of the game on show costs, in cents; none where the player has not said.
  std::optional<std::int64_t> price() const;

  /// Makes a change; false where there was none, or where it failed and a message has said why.
  bool make(const std::function<std::optional<PlayChange>(const PlayChanges&)>& change);
  /// Whether the game on show has a change to undo, and the files are what it made of them.
  bool canUndo(const PlayTexts& shown) const;
  /// What the last change of the game on show did, if it has not been undone; else empty.
  QString lastDone() const;
  void undo();

 private:
  void attempt(const std::function<void()>& action);

  MainForm& form_;
  FormWindow& window_;
  /// Oldest first, each made of what the one before it left.
  std::map<Game, std::vector<PlayChange>> made_;
};

}  // namespace tallywick
