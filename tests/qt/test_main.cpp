// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the window tests without a display and without the user's own settings. The screen has the size that
// TALLYWICK_TEST_SCREEN gives, 1024x768 without it, and the scale of TALLYWICK_TEST_SCALE; fonts are also
// taken from the folder TALLYWICK_TEST_FONTS where the system names none. Every dialog and box that a test
// shows is looked at.
#include "qt/look.h"
#include "ui/qt/program/guarded_application.h"

#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class WatchedApplication : public tallywick::GuardedApplication {
 public:
  using GuardedApplication::GuardedApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    const bool isShown = event->type() == QEvent::Show && qobject_cast<QDialog*>(receiver) != nullptr &&
                         qobject_cast<QFileDialog*>(receiver) == nullptr;
    const bool isAccepted = GuardedApplication::notify(receiver, event);
    if (isShown) tallywick::test::look(*static_cast<QWidget*>(receiver));
    return isAccepted;
  }
};

/// Its name is one of the present folder, since the colon of a drive ends what is said of a platform.
void makeScreen(const char* file) {
  const QList<QByteArray> sides =
      QByteArray(qEnvironmentVariableIsSet("TALLYWICK_TEST_SCREEN") ? qgetenv("TALLYWICK_TEST_SCREEN")
                                                                    : "1024x768")
          .split('x');
  QFile screen(QString::fromLatin1(file));
  EXPECT_TRUE(screen.open(QFile::WriteOnly));
  screen.write(R"({"screens":[{"name":"test","x":0,"y":0,"width":)" + sides.at(0) + R"(,"height":)" +
               sides.at(1) + R"(,"logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})");
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QByteArray(file));
}

/// The variables of the toolkit do not come through Wine under their own names.
void takeOver(const char* variable, const char* ofToolkit) {
  if (qEnvironmentVariableIsSet(variable)) qputenv(ofToolkit, qgetenv(variable));
}

}  // namespace

int main(int argumentCount, char** arguments) {
  testing::InitGoogleTest(&argumentCount, arguments);
  const QTemporaryDir settings;
  const QString folder = QDir::currentPath();
  QDir::setCurrent(settings.path());
  takeOver("TALLYWICK_TEST_SCALE", "QT_SCALE_FACTOR");
  takeOver("TALLYWICK_TEST_FONTS", "QT_QPA_FONTDIR");
  makeScreen("screen.json");
  // Not in the registry, where Windows has the user's own.
  QSettings::setDefaultFormat(QSettings::IniFormat);
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  QCoreApplication::setOrganizationName(QStringLiteral("Tallywick"));
  QCoreApplication::setApplicationName(QStringLiteral("tallywick"));
  QGuiApplication::setQuitOnLastWindowClosed(false);
  const WatchedApplication qt(argumentCount, arguments);
  QDir::setCurrent(folder);
  if (qEnvironmentVariableIsSet("TALLYWICK_TEST_FONTS"))
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), QApplication::font().pointSize()));
  // The programs that tests start are elsewhere.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  return RUN_ALL_TESTS();
}
