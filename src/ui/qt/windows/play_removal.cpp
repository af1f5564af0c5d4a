// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/play_removal.h"

#include "core/runtime_error.h"
#include "display/judging.h"
#include "plays/play_table.h"
#include "selection/play_lists.h"
#include "selection/selection_form.h"

#include <array>
#include <functional>
#include <stdexcept>
#include <utility>

namespace tallywick {

namespace {

void locked(const std::function<void()>& act) {
  try {
    act();
  } catch (const LockedByAnother&) {
    throw std::runtime_error("Another program is changing the play files; please try again.");
  }
}

PlayChanges changesOf(const SelectionForm& form) {
  return {form.game, form.surroundings.folder, form.surroundings.clock};
}

/// A drawn play belongs among the played ones, and its result stays.
void requireRemovable(const SelectionForm& form, const PlayTexts& texts, std::size_t record) {
  for (const JudgedPlay& play : judgePlays(form.game, form.surroundings.folder, {}, texts.committed).plays) {
    if (play.record == record && !isRemovable(play))
      throw std::runtime_error(
          "This play is drawn already and is not taken away. My Plays, on the page Winnings, moves it to the "
          "played plays.");
  }
}

}  // namespace

std::string PlayRemoval::removeCurrent(std::size_t line) {
  locked([&] { removed_.emplace_back(removeCurrentPlay(form_, line)); });
  return "1 play removed";
}

std::string PlayRemoval::removeNext(std::size_t line) {
  const PlayTexts shown = readPlayTexts(form_.game, form_.surroundings.folder);
  const std::optional<std::size_t> record = recordOfNextPlay(form_, line);
  if (!record) throw PlaysChangedMeanwhile();
  requireRemovable(form_, shown, *record);
  const std::array places = {PlayPlace{PlaySlot::committed, *record}};
  locked([&] { removed_.emplace_back(changesOf(form_).remove(shown, places)); });
  showNextPlays(form_);
  return std::get<PlayChange>(removed_.back()).what;
}

bool PlayRemoval::bringBack() {
  const auto removed = std::move(removed_.back());
  removed_.pop_back();
  if (const auto* current = std::get_if<RemovedPlay>(&removed)) {
    locked([&] { bringCurrentPlayBack(form_, *current); });
    return false;
  }
  try {
    locked([&] { changesOf(form_).undo(std::get<PlayChange>(removed)); });
  } catch (const PlaysChangedMeanwhile&) {
    throw std::runtime_error(
        "The play files have changed since, and this can no longer be undone. Nothing was done; Bring Back "
        "on "
        "My Plays adds the plays of a dated copy.");
  }
  showNextPlays(form_);
  return true;
}

}  // namespace tallywick
