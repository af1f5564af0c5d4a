// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of the plays as the windows make them: errors become messages, the lists of plays are shown anew,
// and the last change of each game can be undone.
#pragma once

#include "plays/play_changes.h"

#include <QString>
#include <functional>
#include <map>

namespace tallywick {

class FormWindow;
class MainForm;

class PlayActions {
 public:
  PlayActions(MainForm& form, FormWindow& window) : form_(form), window_(window) {}

  /// The game on show.
  const GameInfo& game() const;
  const DataFolder& folder() const;
  /// What a play of the game on show costs, in cents; none where the player has not said.
  std::optional<std::int64_t> price() const;

  /// Makes a change; false where there was none, or where it failed and a message has said why.
  bool make(const std::function<std::optional<PlayChange>(const PlayChanges&)>& change);
  bool canUndo() const { return last_.contains(game().game); }
  /// What the last change of the game on show did; empty without one.
  QString lastDone() const;
  void undo();

 private:
  void attempt(const std::function<void()>& action);

  MainForm& form_;
  FormWindow& window_;
  std::map<Game, PlayChange> last_;
};

}  // namespace tallywick
