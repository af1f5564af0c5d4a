// SPDX-License-Identifier: GPL-3.0-or-later
// The plays of a record book with their judging, for windows that ask after every press.
#pragma once

#include "core/remembered.h"
#include "display/judging.h"
#include "plays/play_changes.h"

#include <map>
#include <memory>

namespace tallywick {

/// What a game's play files contained, and what the judging says of it.
struct JudgedPlays {
  PlayTexts texts;
  Judgement judgement;
};

/// Judges the plays of a game anew where a file of it has changed.
class PlayJudge {
 public:
  explicit PlayJudge(const DataFolder& folder) : folder_(folder) {}

  /// Raises what judgePlays() raises.
  std::shared_ptr<const JudgedPlays> plays(const GameInfo& game);

 private:
  const DataFolder& folder_;
  std::map<Game, Remembered<std::shared_ptr<const JudgedPlays>>> judged_;
};

}  // namespace tallywick
