// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/pages/play_actions.h"

#include "app/main_form.h"
#include "core/clock.h"
#include "core/runtime_error.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/form_window.h"

namespace tallywick {

const GameInfo& PlayActions::game() const {
  const GameInfo* const shown = gameOnShow(form_.frames);
  return shown != nullptr ? *shown : powerBall;
}

const DataFolder& PlayActions::folder() const {
  return window_.desk().folder;
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
    last_.insert_or_assign(game().game, *made);
    isMade = true;
  });
  return isMade;
}

QString PlayActions::lastDone() const {
  const auto found = last_.find(game().game);
  return found == last_.end() ? QString() : toQString(found->second.what);
}

void PlayActions::undo() {
  attempt([&] {
    const SystemClock clock;
    PlayChanges(game(), folder(), clock).undo(last_.at(game().game));
    last_.erase(game().game);
  });
}

}  // namespace tallywick
