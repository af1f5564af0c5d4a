// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the window tests without a display and without the user's own settings.
#include "ui/qt/program/guarded_application.h"

#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argumentCount, arguments);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  QCoreApplication::setOrganizationName(QStringLiteral("Tallywick"));
  QCoreApplication::setApplicationName(QStringLiteral("tallywick"));
  QGuiApplication::setQuitOnLastWindowClosed(false);
  const tallywick::GuardedApplication qt(argumentCount, arguments);
  return RUN_ALL_TESTS();
}
