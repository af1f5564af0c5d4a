// SPDX-License-Identifier: GPL-3.0-or-later
// Updates as the windows run them: nothing that a portal does ends the program.
#include "app/application.h"
#include "app/draws_note.h"
#include "app/game_pages.h"
#include "app/sample_plays.h"
#include "core/text.h"
#include "exports/made_up.h"
#include "update/maintenance.h"
#include "update/public_exports.h"

#include <algorithm>
#include <exception>
#include <stdexcept>
#include <utility>

namespace tallywick {

void Application::updateInWindow(Control& control) {
  const bool isBoth = &control == &main_->update.Command2;
  if (!fetchesFirst() || (isBoth && updatesAreClosed(surroundings_.clock))) {
    click(control);
    return;
  }
  std::vector<const GameInfo*> games(allGames.begin(), allGames.end());
  if (&control == &main_->menu.mnuPowerBall2) games = {&powerBall};
  if (&control == &main_->menu.mnuMegaMillions2) games = {&megaMillions};
  fetchThenUpdate(games, [&control] { click(control); });
}

void Application::updateAgain() {
  const auto update = [this] { main_->update.Command2.onClick(); };
  if (!fetchesFirst() || updatesAreClosed(surroundings_.clock)) return update();
  fetchThenUpdate({allGames.begin(), allGames.end()}, update);
}

bool Application::fetchesFirst() const {
  return surroundings_.settings.source == Settings::Source::publicExports && !surroundings_.newTransfer;
}

void Application::fetchThenUpdate(const std::vector<const GameInfo*>& games,
                                  const std::function<void()>& update) {
  const DataFolder& folder = surroundings_.folder;
  recover();
  showRecoveryNotices();
  FetchedExports exports(folder, surroundings_.clock, games.size(), {}, &surroundings_.platform);
  if (!fetchAll(exports, games)) return;
  const UpdateControls before(main_->update, main_->menu.mnuPowerBall2, main_->menu.mnuMegaMillions2);
  const std::vector<const GameInfo*> madeUp = madeUpGames();
  try {
    const auto hasMoves = [&folder](const GameInfo* game) { return hasDrawnPlays(*game, folder); };
    if (!exports.bringDraws() && std::ranges::none_of(games, hasMoves)) {
      exports.takeInto(folder);
      for (const GameFetch& result : exports.results()) {
        if (!result.error.empty()) throw std::runtime_error(fetchFailure(result));
      }
      showNothingNew(games, exports.remarks());
      return;
    }
    fetched_ = &exports;
    update();
    fetched_ = nullptr;
    if (!exports.remarks().empty()) {
      showMessage(surroundings_.platform, join("The draws have come. Of the exports:\n\n", exports.remarks()),
                  MessageBox::Icon::information);
    }
  } catch (const std::exception& error) {
    fetched_ = nullptr;
    before.giveBack("");
    showMessage(
        surroundings_.platform,
        join("The update could not be completed.\n\n", error.what(),
             "\n\nA game's draws come as a whole or not at all; no play is lost. You can update again."),
        MessageBox::Icon::exclamation);
  }
  offerToTakePlaysAway(madeUp);
  showGameAnew();
}

bool Application::fetchAll(FetchedExports& exports, const std::vector<const GameInfo*>& games) {
  StatusBar& status = main_->update.StatusBar1;
  for (std::size_t fetched = 0; fetched < games.size();) {
    const GameInfo& game = *games[fetched];
    status.setPanel(1, join("Fetching the draws of ", game.name));
    try {
      const GameFetch& fetch = exports.fetch({game.game, serverOf(game.game)});
      const std::string why = fetch.error.empty() ? "" : fetchFailure(fetch);
      status.setPanel(1, "");
      if (why.empty()) {
        ++fetched;
      } else if (askAfterFailure(game, why) == AfterFailedFetch::leave) {
        return false;
      }
    } catch (const TransferCancelled&) {
      status.setPanel(1, "The update was cancelled; nothing was changed");
      return false;
    }
  }
  return true;
}

AfterFailedFetch Application::askAfterFailure(const GameInfo& game, const std::string& why) {
  const std::string text =
      join("The draws of ", game.name, " could not be fetched. Nothing was changed.\n\n", why);
  if (onFetchFailed) return onFetchFailed(game, text);
  showMessage(surroundings_.platform, text, MessageBox::Icon::exclamation);
  return AfterFailedFetch::leave;
}

void Application::showNothingNew(const std::vector<const GameInfo*>& games, std::string_view remarks) {
  std::string text = "There is no new draw. Nothing was changed.\n";
  for (const GameInfo* game : games) {
    text += join("\n", game->name, ": ", drawsNote(*game, surroundings_.folder, surroundings_.clock), ".");
  }
  if (!remarks.empty()) text += join("\n\n", remarks);
  showMessage(surroundings_.platform, std::move(text), MessageBox::Icon::information);
}

void Application::showGameAnew() {
  try {
    fillGameOnShow(*main_, surroundings_.folder);
  } catch (const std::exception& error) {
    showMessage(surroundings_.platform, join("The draws could not be shown anew.\n\n", error.what()),
                MessageBox::Icon::exclamation);
  }
}

const GameInfo& Application::gameShown() const {
  const GameInfo* const game = main_ != nullptr ? gameOnShow(main_->frames) : nullptr;
  return game != nullptr ? *game : powerBall;
}

std::vector<const GameInfo*> Application::madeUpGames() const {
  std::vector<const GameInfo*> games(allGames.begin(), allGames.end());
  std::erase_if(
      games, [this](const GameInfo* game) { return !exports::isMadeUp(surroundings_.folder, game->game); });
  return games;
}

bool Application::showsMadeUpDraws() const {
  const GameInfo* const game = main_ != nullptr ? gameOnShow(main_->frames) : nullptr;
  return game != nullptr && exports::isMadeUp(surroundings_.folder, game->game);
}

std::string Application::drawsAge() const {
  const GameInfo* const game = main_ != nullptr ? gameOnShow(main_->frames) : nullptr;
  if (game == nullptr || exports::isMadeUp(surroundings_.folder, game->game)) return "";
  return drawsAgeNote(*game, surroundings_.folder, surroundings_.clock);
}

void Application::offerToTakePlaysAway(const std::vector<const GameInfo*>& before) {
  const DataFolder& folder = surroundings_.folder;
  for (const GameInfo* game : before) {
    try {
      const std::size_t plays = exports::isMadeUp(folder, game->game) ? 0 : countPlays(*game, folder);
      if (plays == 0) continue;
      const MessageBox question = {
          join("The draws of ", game->name, " are real now, but its ", std::to_string(plays),
               " plays were there with the made-up draws. Take all of them away?\n\n"
               "They stay in the folder as dated copies. With No they stay as they are."),
          std::string(programTitle), MessageBox::Icon::question, MessageBox::Buttons::yesNo};
      if (surroundings_.platform.show(question) == MessageBox::Answer::yes)
        takePlaysAway(*game, folder, surroundings_.clock);
    } catch (const std::exception& error) {
      showMessage(surroundings_.platform, join("The plays stay as they are.\n\n", error.what()),
                  MessageBox::Icon::exclamation);
    }
  }
}

std::string Application::noteOfUpdate() const {
  if (main_ == nullptr || !fetchesFirst()) return "";
  const UpdatePage& page = main_->update;
  const GameInfo* const game = gameOnShow(main_->frames);
  if (game == nullptr || page.Command2.visible() || main_->updateHiddenByGameSwitch ||
      page.ProgressBar1.visible()) {
    return "";
  }
  return drawsNote(*game, surroundings_.folder, surroundings_.clock);
}

}  // namespace tallywick
