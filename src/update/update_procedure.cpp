// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/update_procedure.h"

#include "core/data_folder.h"
#include "core/sequential_reader.h"
#include "core/text.h"
#include "update/folder_transfer.h"
#include "update/maintenance.h"
#include "update/transfer_status.h"

#include <string_view>

namespace tallywick {

namespace {

constexpr std::string_view lastClosedTime = "07:00:00";

void showCompleted(MessageBoxes& boxes) {
  showMessage(boxes, "The updates for The Tallywick Software is completed", MessageBox::Icon::information);
}

std::string firstField(const DataFolder& folder, std::string_view file) {
  SequentialReader reader(folder, file);
  return std::string(reader.field());
}

void progressTo(UpdateSurroundings& update, int value) {
  update.page.ProgressBar1.setValue(value);
  update.screen.refresh();
}

/// The download of one update, from the reading of the credentials on.
class Fetcher {
 public:
  explicit Fetcher(UpdateSurroundings& update)
      : update_(update),
        // Kept slip: the names are crossed, the login is in the second file.
        password_(firstField(update.folder, passwordFile)),
        login_(firstField(update.folder, loginFile)),
        status_(update.page.StatusBar1),
        download_(update.newTransfer, &status_) {
    download_.setLogin(login_);
    download_.setPassword(password_);
  }

  void fetch(const GameInfo& game, std::string_view serverFolder) {
    download_.setServer(update_.serverOf(game.game));
    download_.setSourceFolder(serverFolder);
    download_.setTargetFolder(join(installFolder, "\\", game.folder.substr(0, game.folder.size() - 1)));
    download_.Start();
  }

 private:
  UpdateSurroundings& update_;
  std::string password_;
  std::string login_;
  TransferStatus status_;
  Download download_;
};

UpdateControls controlsOf(UpdateSurroundings& update) {
  return {update.page, update.mnuPowerBall2, update.mnuMegaMillions2};
}

/// Runs the part of an update that can be cancelled. Cancelling it lets the user update again; what has come
/// down before stays.
template <typename Action>
void untilCancelled(const UpdateControls& before, Action action) {
  try {
    action();
  } catch (const TransferCancelled&) {
    before.giveBack("The update was cancelled");
    throw;
  }
}

void updateOneGame(UpdateSurroundings& update, const GameInfo& game, MenuEntry& entry) {
  UpdatePage& page = update.page;
  const UpdateControls before = controlsOf(update);
  showMessage(update.boxes, join("Updating The Tallywick Software ", game.name, " game"));
  page.ProgressBar1.setValue(1);
  page.ProgressBar1.show();
  page.Command2.hide();
  entry.setEnabled(false);
  update.screen.refresh();
  untilCancelled(before, [&] { Fetcher(update).fetch(game, game.serverFolderOfMenus); });
  progressTo(update, 100);
  maintainPlayFiles(game, update.folder, update.programs);
  update.refreshPictures();
  page.ProgressBar1.hide();
  showCompleted(update.boxes);
}

}  // namespace

bool updatesAreClosed(const Clock& clock) {
  return clock.time() <= lastClosedTime;
}

void Command2_Click(UpdateSurroundings& update) {
  if (updatesAreClosed(update.clock)) {
    showMessage(
        update.boxes,
        "The Tallywick Software servers are unavailable,\r\nPlease retry your request after 07:00 AM EST",
        MessageBox::Icon::exclamation);
    return;
  }
  UpdatePage& page = update.page;
  const UpdateControls before = controlsOf(update);
  page.Command2.hide();
  update.mnuPowerBall2.setEnabled(false);
  update.mnuMegaMillions2.setEnabled(false);
  showMessage(update.boxes, "The Tallywick Software is updating,\r\nPlease allow the updates to complete...");
  page.ProgressBar1.show();
  update.screen.refresh();
  untilCancelled(before, [&] {
    Fetcher fetcher(update);
    fetcher.fetch(powerBall, powerBall.serverFolder);
    progressTo(update, 50);
    fetcher.fetch(megaMillions, megaMillions.serverFolder);
  });
  progressTo(update, 100);
  Command1_Click(update.folder, update.programs);
  Command51_Click(update.folder, update.programs);
  page.ProgressBar1.hide();
  showCompleted(update.boxes);
  update.refreshPictures();
}

void mnuPowerBall2_Click(UpdateSurroundings& update) {
  updateOneGame(update, powerBall, update.mnuPowerBall2);
}

void mnuMegaMillions2_Click(UpdateSurroundings& update) {
  updateOneGame(update, megaMillions, update.mnuMegaMillions2);
}

}  // namespace tallywick
