// SPDX-License-Identifier: GPL-3.0-or-later
// What a selection window says beside the model's own texts: what a press will do, what was done, and the
// marks that can be brought back. Nothing here changes what a press does.
#pragma once

#include "selection/selection_form.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

struct MarksHint {
  enum class Kind : std::uint8_t {
    advice,  ///< the play is not complete yet
    ready,   ///< Select enters what the player means
    warning  ///< a press of Select surprises, or the play cannot win
  };

  /// "06 23 41 58   PowerBall 14"; empty without marks.
  std::string marks;
  /// What is missing, or what Select will do.
  std::string text;
  Kind kind = Kind::advice;
};
MarksHint marksHint(const SelectionForm& form);

/// For how many draws Done enters the current plays, and the last of them; empty without plays.
std::string drawCountHint(const SelectionForm& form);

/// What Draw and the step do with that count, where a press would surprise; empty without plays.
std::string countStepHint(const SelectionForm& form);

/// That Draw has set the count back, to be asked behind its press with the count before it; empty where it
/// has not.
std::string countLostHint(const SelectionForm& form, int countBefore);

/// The numbers of the play to replay that Replay does not mark; empty where it marks all.
std::string replayHint(const SelectionForm& form);

/// What to ask before Select enters the marks as a play without numbers that Replay has left out of the text
/// `replayed`; empty where it does not.
std::string replayQuestion(const SelectionForm& form, std::string_view replayed);

/// How many plays a Done has saved and for which draws, from the file of the committed plays.
std::string committedHint(const SelectionForm& form);

/// Whether plays are selected that closing the window drops.
bool hasPlaysToLose(const SelectionForm& form);

/// Marks the last six numbers of `line`, the sixth as extra ball, by the presses of a player; what was marked
/// goes. Returns a sentence on the numbers that no press marks so; empty where all are marked. A line without
/// a number leaves the marks alone.
std::string markLine(SelectionForm& form, std::string_view line);

/// The marks that an action took off.
class RemovedMarks {
 public:
  /// Runs `action` and keeps the marks that it took off without entering a play. True where there are some.
  bool watch(const SelectionForm& form, const std::function<void()>& action);
  /// Puts the marks kept last back in the place of those that are there. False where none are kept.
  bool bringBack(SelectionForm& form);

 private:
  std::vector<std::vector<Mark>> removed_;
};

}  // namespace tallywick
