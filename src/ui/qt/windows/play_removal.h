// SPDX-License-Identifier: GPL-3.0-or-later
// Taking plays away in a selection window, and bringing them back, the last one first.
#pragma once

#include "plays/play_changes.h"
#include "selection/removed_plays.h"

#include <variant>
#include <vector>

namespace tallywick {

class SelectionForm;

class PlayRemoval {
 public:
  explicit PlayRemoval(SelectionForm& form) : form_(form) {}

  /// By the line of the list of current plays; what was done, as "1 play removed". What prevents it is raised
  /// as an exception whose text is for the player; so do the others.
  std::string removeCurrent(std::size_t line);
  /// By the line of the list of next plays, of which a drawn one stays.
  std::string removeNext(std::size_t line);

  /// Forgets what it brings back, or cannot bring back any more. True where committed plays have changed.
  bool bringBack();

 private:
  SelectionForm& form_;
  std::vector<std::variant<RemovedPlay, PlayChange>> removed_;
};

}  // namespace tallywick
