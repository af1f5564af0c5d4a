// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the window tests without a display and without the user's own settings.
#include <QApplication>
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
  const QApplication qt(argumentCount, arguments);
  return RUN_ALL_TESTS();
}
