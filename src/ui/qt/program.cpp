// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program.h"

#include "app/application.h"
#include "ui/qt/first_start.h"
#include "ui/qt/help.h"
#include "ui/qt/options.h"
#include "ui/qt/program_icon.h"
#include "ui/qt/qt_platform.h"
#include "ui/qt/screenshot.h"
#include "ui/qt/transfer_window.h"

#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <iostream>

namespace tallywick {

using namespace Qt::StringLiterals;

namespace {

/// The arguments in the form that the toolkit takes and keeps using.
class ToolkitArguments {
 public:
  explicit ToolkitArguments(const std::vector<std::string>& arguments) : texts_(arguments) {
    for (std::string& text : texts_) pointers_.push_back(text.data());
    count_ = static_cast<int>(pointers_.size());
    pointers_.push_back(nullptr);
  }
  int& count() { return count_; }
  char** pointers() { return pointers_.data(); }

 private:
  std::vector<std::string> texts_;
  std::vector<char*> pointers_;
  int count_ = 0;
};

void nameProgram(bool takesPicture) {
  QCoreApplication::setOrganizationName(u"Tallywick"_s);
  // A picture shows the usual layout, whatever the user's own is.
  QCoreApplication::setApplicationName(takesPicture ? u"tallywick-picture"_s : u"tallywick"_s);
  QCoreApplication::setApplicationVersion(QString::fromLatin1(programVersion()));
  QGuiApplication::setDesktopFileName(u"org.tallywick.Tallywick"_s);
  // The model tells when the program ends.
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

Settings settingsOf(const DataFolder& folder) {
  try {
    return readSettings(folder);
  } catch (const std::exception& error) {
    QMessageBox box(QMessageBox::Warning, toQString(programTitle), QString::fromUtf8(error.what()),
                    QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
    return {};
  }
}

void connectDesk(Application& application, QtPlatform& platform) {
  platform.onClose = [&](Form& form) { application.close(form); };
  platform.onEditSettings = [&] { editSettings(application, platform); };
  platform.onHelp = [&](const QString& page) { openHelp(application.surroundings().folder, page); };
}

int runWindows(Application& application, QtPlatform& platform, bool splash) {
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, [&] { platform.run([&] { application.splashTimer(); }); });
  if (splash) timer.start(SplashForm::timerMilliseconds);
  platform.run([&] { splash ? application.showSplash() : application.showMainWindow(); });
  return platform.ended() ? platform.exitCode() : QApplication::exec();
}

int runOn(const DataFolder& folder, const Options& options) {
  SystemClock clock;
  MixingGenerator random(entropy());
  QtPlatform platform(folder);
  QtTransferWindow transferWindow;
  Application application({folder, settingsOf(folder), clock, random, platform, {}, &transferWindow});
  connectDesk(application, platform);
  if (!options.screenshot.empty()) return takeScreenshot(application, platform, options);
  return runWindows(application, platform, !options.noSplash);
}

}  // namespace

int runProgram(int argumentCount, char** arguments) {
  Options options;
  if (const std::optional<int> done = readOptions(argumentCount, arguments, options)) return *done;
  ToolkitArguments toolkit(options.toolkitArguments);
  nameProgram(!options.screenshot.empty());
  const QApplication qt(toolkit.count(), toolkit.pointers());
  if (toolkit.count() > 1) {
    std::cerr << "tallywick: " << toolkit.pointers()[1] << " is no option; --help tells them\n";
    return 2;
  }
  QGuiApplication::setWindowIcon(programIcon());
  const auto folder = findDataFolder(options.folder, options.screenshot.empty() ? Offer::yes : Offer::no);
  if (!folder) return options.screenshot.empty() ? 0 : 1;
  const auto hold = holdDataFolder(*folder);
  return hold ? runOn(DataFolder(*folder), options) : 1;
}

}  // namespace tallywick
