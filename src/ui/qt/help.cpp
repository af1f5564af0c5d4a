// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/help.h"

#include "app/application.h"
#include "core/games.h"
#include "core/os.h"
#include "ui/qt/help_window.h"
#include "ui/qt/qt_platform.h"
#include "ui/qt/settings_dialog.h"

#include <QApplication>
#include <QStandardPaths>
#include <array>

namespace tallywick {

namespace {

/// Programs that show a compiled help file given as their argument.
constexpr std::array viewers = {"hh", "kchmviewer", "uchmviewer", "xchm"};

QString findViewer() {
  for (const char* viewer : viewers) {
    const QString program = QStandardPaths::findExecutable(QString::fromLatin1(viewer));
    if (!program.isEmpty()) return program;
  }
  return {};
}

}  // namespace

void openHelp(const DataFolder& folder, const QString& page) {
  const QString viewer = folder.exists(helpFile) ? findViewer() : QString();
  if (!viewer.isEmpty()) {
    os::startProgram(viewer.toStdU16String(), folder.resolve(helpFile), folder.root());
    return;
  }
  HelpWindow::showPage(page);
}

void editSettings(Application& application, QtPlatform& platform) {
  const DataFolder& folder = application.surroundings().folder;
  try {
    // A file that cannot be understood is not overwritten.
    application.setSettings(readSettings(folder));
    SettingsDialog dialog(application.settings(), QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return;
    writeSettings(folder, dialog.settings());
    application.setSettings(dialog.settings());
  } catch (const std::exception& error) {
    platform.show({error.what(), std::string(programTitle), MessageBox::Icon::exclamation});
  }
}

}  // namespace tallywick
