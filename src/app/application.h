// SPDX-License-Identifier: GPL-3.0-or-later
// The program: its windows, and what their controls lead to.
#pragma once

#include "app/main_form.h"
#include "app/platform.h"
#include "app/small_windows.h"
#include "core/clock.h"
#include "core/data_folder.h"
#include "core/games.h"
#include "core/random.h"
#include "selection/selection_form.h"
#include "settings/settings.h"
#include "update/update_procedure.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class FetchedExports;

/// What the program works with.
struct Surroundings {
  const DataFolder& folder;
  Settings settings;
  const Clock& clock;
  RandomGenerator& random;
  Platform& platform;
  /// Empty for the program's own FTP client or public exports, as the settings have it.
  TransferFactory newTransfer;
  /// The progress window that a transfer can be asked for; null for none.
  TransferWindow* transferWindow = nullptr;
};

/// What the user wants where draws could not be fetched.
enum class AfterFailedFetch { leave, tryAgain };

class Application {
 public:
  explicit Application(Surroundings surroundings);
  /// Closes the windows that are still open, before the forms that they show go.
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// Shows the splash window; its timer is the binding's and calls splashTimer().
  void showSplash();
  /// Brings the main window where there is none yet, and closes the splash.
  void splashTimer();
  /// Finishes what a crash left behind in the game folders, then creates, fills and shows the main window.
  void showMainWindow();

  /// The open windows in the order in which they were opened.
  std::vector<Form*> windows() const;
  /// The open window of that name; null where none is open.
  Form* find(std::string_view name) const;
  /// What closing a window by its frame does: the main window ends the program.
  void close(const Form& form);

  void openSelection(const GameInfo& game);

  /// Runs the update that `control` starts as the windows want it. From public exports everything is fetched
  /// before the update procedure begins, and where nothing can be fetched or nothing is new it does not
  /// begin; what fails is a message. Afterwards the lists of the game on show are filled anew.
  void updateInWindow(Control& control);
  /// Shows why the draws of `game` could not be fetched, and asks how to go on; empty for a message.
  std::function<AfterFailedFetch(const GameInfo& game, const std::string& why)> onFetchFailed;
  /// The same as Command2's, also where an update has hidden it.
  void updateAgain();
  /// Fills the lists of the game on show anew, and says in a message what fails.
  void showGameAnew();
  /// The game on show, PowerBall where there is none.
  const GameInfo& gameShown() const;
  /// The games whose draws are made up.
  std::vector<const GameInfo*> madeUpGames() const;
  /// Whether the draws of the game on show are made up.
  bool showsMadeUpDraws() const;
  /// That the newest draw of the game on show is long past; empty where it is not, or is made up.
  std::string drawsAge() const;
  /// Asks whether the plays of the games among `before` that have real draws now are to go with their sample.
  void offerToTakePlaysAway(const std::vector<const GameInfo*>& before);
  /// What is known about the draws of the game on show, in the place of the button that an update has hidden;
  /// empty where that is in its place.
  std::string noteOfUpdate() const;
  /// Closes every window and ends the program.
  void exit();

  const Settings& settings() const { return surroundings_.settings; }
  void setSettings(const Settings& settings) { surroundings_.settings = settings; }
  const Surroundings& surroundings() const { return surroundings_; }

 private:
  template <typename Window>
  Window& open(std::unique_ptr<Window> window);
  void closeAll();
  /// Finishes what a crash, of this program or of another on the same folder, cut short.
  void recover() const;
  /// Shows what the recoveries could not finish.
  void showRecoveryNotices() const;
  /// An action that reads or writes files of the games: recovery comes before it.
  std::function<void()> onFiles(std::function<void()> action) const;
  void wireMainWindow();
  void wireBar();
  void wireMenus();
  void wireSearches();
  void wireDisplays();
  void wireUpdates();
  TransferFactory transferFactory() const;
  /// What an update of the game has for its Server, by the settings.
  std::string serverOf(Game game) const;
  UpdateSurroundings updateSurroundings();
  bool fetchesFirst() const;
  /// Fetches the exports of `games`, runs `update` on them, and reports what fails.
  void fetchThenUpdate(const std::vector<const GameInfo*>& games, const std::function<void()>& update);
  /// False where something could not be fetched; the user has been shown why and does not try again.
  bool fetchAll(FetchedExports& exports, const std::vector<const GameInfo*>& games);
  AfterFailedFetch askAfterFailure(const GameInfo& game, const std::string& why);
  /// `remarks` are sentences on the exports, a line each.
  void showNothingNew(const std::vector<const GameInfo*>& games, std::string_view remarks);
  void openSettingPage(const std::string& address, std::string_view what);
  void showAbout();
  void showSystemInformation();

  Surroundings surroundings_;
  /// For the update at hand; null where it fetches them itself.
  const FetchedExports* fetched_ = nullptr;
  MainForm* main_ = nullptr;
  std::vector<std::shared_ptr<Form>> windows_;
  /// Kept until the next window opens: a handler of their own may have closed them.
  std::vector<std::shared_ptr<Form>> closed_;
};

}  // namespace tallywick
