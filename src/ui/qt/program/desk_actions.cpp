// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/desk_actions.h"

#include "app/application.h"
#include "core/games.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "setup/new_folder.h"
#include "ui/qt/dialogs/backup_dialog.h"
#include "ui/qt/dialogs/draws_dialog.h"
#include "ui/qt/dialogs/settings_dialog.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/program/qt_platform.h"
#include "ui/qt/windows/help_window.h"
#include "ui/qt/windows/selection_window.h"

#include <QApplication>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <array>
#include <iostream>

namespace tallywick {

namespace {

/// Programs that show a compiled help file given as their argument.
constexpr std::array viewers = {"hh", "kchmviewer", "uchmviewer", "xchm"};

QString findViewer() {
  for (const char* viewer : viewers) {
    QString program = QStandardPaths::findExecutable(QString::fromLatin1(viewer));
    if (!program.isEmpty()) return program;
  }
  return {};
}

bool openCompiledHelp(const DataFolder& folder) {
  try {
    const QString viewer = folder.exists(helpFile) ? findViewer() : QString();
    if (viewer.isEmpty()) return false;
    os::startProgram(toPath(viewer), folder.resolve(helpFile), folder.root());
    return true;
  } catch (const RuntimeError&) {
    return false;  // The folder cannot be read or the viewer not started: the manual needs neither.
  }
}

}  // namespace

void openHelp(const DataFolder& folder, const QString& page) {
  if (!openCompiledHelp(folder)) HelpWindow::showPage(page);
}

Settings settingsAtStart(const DataFolder& folder, QtPlatform& platform) {
  try {
    return readSettings(folder);
  } catch (const std::exception& error) {
    const std::string text =
        join(error.what(), "\n\nThe file is left as it is; correct it with a text editor.");
    std::cerr << "tallywick: " << error.what() << '\n';
    showMessage(platform, text, MessageBox::Icon::exclamation);
  }
  Settings none;
  none.source = Settings::Source::server;
  return none;
}

void editSettings(Application& application, QtPlatform& platform) {
  const DataFolder& folder = application.surroundings().folder;
  // Somebody may have changed the file since.
  application.setSettings(readSettings(folder));
  SettingsDialog dialog(application.settings(), QApplication::activeWindow());
  while (dialog.exec() == QDialog::Accepted) {
    try {
      const Settings settings = dialog.settings();
      writeSettings(folder, settings);
      application.setSettings(settings);
      return;
    } catch (const std::exception& error) {
      showMessage(platform, error.what(), MessageBox::Icon::exclamation);
    }
  }
}

std::filesystem::path showBackups(Application& application, QtPlatform& platform) {
  BackupDialog dialog(application.surroundings().folder.root(), platform, QApplication::activeWindow());
  dialog.exec();
  if (dialog.restoreFrom().empty() || !maySelectionsClose()) return {};
  platform.run([&application] { application.exit(); });
  return dialog.restoreFrom();
}

void editDraws(Application& application, QtPlatform& platform, const GameInfo* importOf) {
  const Surroundings& around = application.surroundings();
  const std::vector<const GameInfo*> madeUp = application.madeUpGames();
  DrawsDialog dialog(around.folder, around.clock, setup::exportAddresses(application.settings()),
                     importOf != nullptr ? *importOf : application.gameShown(), QApplication::activeWindow());
  if (importOf != nullptr) dialog.importAtOnce();
  dialog.onChanged = [&platform, &application] {
    platform.run([&application] { application.showGameAnew(); });
  };
  dialog.exec();
  if (!dialog.hasChanged()) return;
  platform.run([&] {
    application.offerToTakePlaysAway(madeUp);
    application.showGameAnew();
  });
}

AfterFailedFetch askAfterFailedFetch(Application& application, QtPlatform& platform, const GameInfo& game,
                                     const std::string& why) {
  constexpr int again = 0;
  constexpr int files = 1;
  const int answer = platform.ask(
      why, {QStringLiteral("&Try Again"), QStringLiteral("Take &Files…"), QStringLiteral("&Close")});
  if (answer == files) {
    // When the update has ended.
    QTimer::singleShot(0, QApplication::instance(), [&application, &platform, &game] {
      platform.attempt([&] { editDraws(application, platform, &game); });
    });
  }
  return answer == again ? AfterFailedFetch::tryAgain : AfterFailedFetch::leave;
}

void press(Application& application, QtPlatform& platform, Control& control) {
  constexpr std::array updates = {"Command2", "mnuPowerBall2", "mnuMegaMillions2"};
  // The selection windows have controls of these names, too.
  const Form* const main = application.find("Form1");
  const auto isThis = [&](const char* name) { return main != nullptr && main->find(name) == &control; };
  if (std::ranges::none_of(updates, isThis)) {
    click(control);
    return;
  }
  const Settings& settings = application.settings();
  if (settings.source == Settings::Source::server && settings.server.empty()) {
    showMessage(platform, "No update server is set. Press Settings… and enter its address.");
    return;
  }
  application.updateInWindow(control);
}

bool isSet(const Application& application, const Control& control) {
  const Settings& settings = application.settings();
  if (control.name() == "mnuQZRHelp") return !settings.webHelp.empty();
  if (control.name() == "mnuGameInfo") return !settings.webSite.empty();
  return true;
}

void showSavedPlays(const Application& application, const GameInfo& game) {
  auto* main = static_cast<MainForm*>(application.find("Form1"));
  if (main == nullptr || gameOnShow(main->frames) != &game) return;
  fillCommittedPlays(main->winnings, application.surroundings().folder, game);
}

}  // namespace tallywick
