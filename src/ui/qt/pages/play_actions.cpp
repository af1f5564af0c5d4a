// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/play_actions.h"

#include "app/error_explained.h"
#include "app/main_form.h"
#include "core/clock.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "ui/qt/binding/form_window.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/wording.h"

namespace tallywick {

namespace {

constexpr std::size_t mostUndone = 20;

}  // namespace

const GameInfo& PlayActions::game() const {
  const GameInfo* const shown = gameOnShow(form_.frames);
  return shown != nullptr ? *shown : powerBall;
}

const DataFolder& PlayActions::folder() const {
  return window_.desk().folder;
}

std::shared_ptr<const JudgedPlays> PlayActions::plays() const {
  return window_.desk().judge.plays(game());
}

HandlerRunner& PlayActions::runner() const {
  return window_.desk().runner;
}

std::optional<std::int64_t> PlayActions::price() const {
  const auto& priceOf = window_.desk().priceOf;
  return priceOf ? priceOf(game().game) : std::nullopt;
}

void PlayActions::attempt(const std::function<void()>& action) {
  window_.desk().runner.attempt([&] {
    try {
      action();
    } catch (const LockedByAnother&) {
      throw std::runtime_error("Another program is changing the play files; please try again.");
    } catch (const RuntimeError& error) {
      throw std::runtime_error(join(error.description(), ".\n\n", errorExplained(error)));
    }
    fillPlayedPlays(form_.winnings, folder(), game());
    fillCommittedPlays(form_.winnings, folder(), game());
  });
  window_.binding().showChanges();
}

bool PlayActions::make(const std::function<std::optional<PlayChange>(const PlayChanges&)>& change) {
  bool isMade = false;
  attempt([&] {
    const SystemClock clock;
    const std::optional<PlayChange> made = change(PlayChanges(game(), folder(), clock));
    if (!made) return;
    std::vector<PlayChange>& earlier = made_[game().game];
    if (!earlier.empty() && earlier.back().after != made->before) earlier.clear();
    if (earlier.size() == mostUndone) earlier.erase(earlier.begin());
    earlier.push_back(*made);
    isMade = true;
  });
  return isMade;
}

bool PlayActions::canUndo(const PlayTexts& shown) const {
  const auto found = made_.find(game().game);
  return found != made_.end() && !found->second.empty() && found->second.back().after == shown;
}

QString PlayActions::lastDone() const {
  const auto found = made_.find(game().game);
  return found == made_.end() || found->second.empty() ? QString() : toQString(found->second.back().what);
}

void PlayActions::undo() {
  attempt([&] {
    const SystemClock clock;
    std::vector<PlayChange>& made = made_.at(game().game);
    try {
      PlayChanges(game(), folder(), clock).undo(made.back());
      made.pop_back();
    } catch (const PlaysChangedMeanwhile&) {
      made.clear();
      throw std::runtime_error(
          "The play files have changed since, and this can no longer be undone. Nothing was done; Bring Back "
          "adds the plays of a dated copy.");
    }
  });
}

}  // namespace tallywick
