// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/program.h"

#include "app/application.h"
#include "app/draws_note.h"
#include "core/remembered.h"
#include "ui/qt/dialogs/backup_dialog.h"
#include "ui/qt/dialogs/first_start.h"
#include "ui/qt/dialogs/real_book.h"
#include "ui/qt/program/desk_actions.h"
#include "ui/qt/program/guarded_application.h"
#include "ui/qt/program/options.h"
#include "ui/qt/program/qt_platform.h"
#include "ui/qt/program/screenshot.h"
#include "ui/qt/program/steps.h"
#include "ui/qt/windows/qt_transfer_window.h"
#include "ui/qt/windows/selection_window.h"
#include "ui/qt/windows/text_size.h"

#include <QIcon>
#include <QSettings>
#include <QTimer>
#include <array>
#include <filesystem>
#include <iostream>
#include <optional>

namespace tallywick {

namespace fs = std::filesystem;
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

/// That of the desktop's theme where the program is installed, else its own.
QIcon programIcon() {
  QIcon own;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) own.addFile(u":/icons/tallywick-%1.png"_s.arg(size));
  return QIcon::fromTheme(u"org.tallywick.Tallywick"_s, own);
}

bool takesPicture(const Options& options) {
  return !options.screenshot.empty();
}

void nameProgram(bool forPicture) {
  QCoreApplication::setOrganizationName(u"Tallywick"_s);
  // A picture shows the usual layout, whatever the user's own is, and that of the picture before.
  QCoreApplication::setApplicationName(forPicture ? u"tallywick-picture"_s : u"tallywick"_s);
  if (forPicture) QSettings().clear();
  QCoreApplication::setApplicationVersion(QString::fromLatin1(programVersion()));
  QGuiApplication::setDesktopFileName(u"org.tallywick.Tallywick"_s);
  // The model decides when the program ends.
  QGuiApplication::setQuitOnLastWindowClosed(false);
}

/// Makes a record book with real draws elsewhere, and ends so that the program goes on with it.
void startRealBook(Application& application, QtPlatform& platform, std::optional<fs::path>& next) {
  if (!maySelectionsClose()) return;
  next = startBookElsewhere(application.settings(), QApplication::activeWindow());
  if (!next) return;
  rememberOwnFolder(*next);
  platform.run([&application] { application.exit(); });
}

}  // namespace

void connectDesk(Application& application, QtPlatform& platform, std::optional<fs::path>& next) {
  Desk& desk = platform.desk;
  desk.close = [&application](Form& form) { application.close(form); };
  desk.editSettings = [&application, &platform] { editSettings(application, platform); };
  desk.help = [&application](const QString& page) { openHelp(application.surroundings().folder, page); };
  desk.press = [&application, &platform](Control& control) { press(application, platform, control); };
  application.onFetchFailed = [&application, &platform](const GameInfo& game, const std::string& why) {
    return askAfterFailedFetch(application, platform, game, why);
  };
  desk.updateNote = [&application] { return application.noteOfUpdate(); };
  desk.updateAgain = [&application] { application.updateAgain(); };
  desk.priceOf = [&application](Game game) {
    const Settings& settings = application.settings();
    return game == Game::powerBall ? settings.powerBallPrice : settings.megaMillionsPrice;
  };
  desk.playsSaved = [&application](const GameInfo& game) { showSavedPlays(application, game); };
  desk.isSet = [&application](const Control& control) { return isSet(application, control); };
  desk.doublePlayNote = [&application, note = Remembered<std::string>()]() mutable {
    const DataFolder& folder = application.surroundings().folder;
    return note.of(stampsOf(folder, std::array{inFolder(powerBall, doublePlayFile)}),
                   [&] { return doublePlayNote(folder); });
  };
  desk.drawsAge = [&application] { return application.drawsAge(); };
  desk.showDoublePlay = [&application, &platform](bool isShown) {
    platform.answerDoublePlay(isShown ? MessageBox::Answer::yes : MessageBox::Answer::no);
    click(*application.find("Form1")->find("Command7"));
  };
  desk.clock = &application.surroundings().clock;
  desk.editDraws = [&application, &platform] { editDraws(application, platform); };
  desk.showsMadeUpDraws = [&application] { return application.showsMadeUpDraws(); };
  desk.startRealBook = [&application, &platform, &next] { startRealBook(application, platform, next); };
}

namespace {

int runWindows(Application& application, QtPlatform& platform, bool splash) {
  QTimer timer;
  timer.setSingleShot(true);
  QObject::connect(&timer, &QTimer::timeout, &timer, [&application, &platform] {
    platform.run([&application] { application.splashTimer(); });
  });
  if (splash) timer.start(SplashForm::timerMilliseconds);
  platform.run([&application, splash] { splash ? application.showSplash() : application.showMainWindow(); });
  return platform.ended() ? platform.exitCode() : QApplication::exec();
}

/// Lets the platform show what escapes from an event, as long as there is one.
class ErrorsShownBy {
 public:
  ErrorsShownBy(GuardedApplication& qt, QtPlatform& platform) : qt_(qt) {
    qt.onEscaped = [&platform](const RuntimeError& error) { platform.endWithError(error); };
  }
  ~ErrorsShownBy() { qt_.onEscaped = nullptr; }
  ErrorsShownBy(const ErrorsShownBy&) = delete;
  ErrorsShownBy& operator=(const ErrorsShownBy&) = delete;

 private:
  GuardedApplication& qt_;
};

/// `next` becomes the record book to open afterwards, `restoreFrom` the backup to make this one of; both stay
/// empty where the program ends.
int runOn(const DataFolder& folder, const Options& options, GuardedApplication& qt,
          std::optional<fs::path>& next, fs::path& restoreFrom) {
  SettableClock clock;
  if (!options.now.empty()) clock.set(options.now);
  MixingGenerator random(entropy());
  QtPlatform platform(folder);
  if (takesPicture(options)) platform.answerAlone();
  const ErrorsShownBy shown(qt, platform);
  QtTransferWindow transferWindow;
  Application application(
      {folder, settingsAtStart(folder, platform), clock, random, platform, {}, &transferWindow});
  connectDesk(application, platform, next);
  platform.desk.backUp = [&] { restoreFrom = showBackups(application, platform); };
  return takesPicture(options)
             ? takeScreenshot(application, platform, options)
             : runWindows(application, platform, !options.noSplash && options.steps.empty());
}

int runOnFolderOf(const Options& options, GuardedApplication& qt) {
  auto folder = findDataFolder(options.folder, takesPicture(options) ? Offer::no : Offer::yes);
  int exitCode = takesPicture(options) ? 1 : 0;
  for (Options run = options; folder;) {
    std::optional<fs::path> next;
    fs::path restoreFrom;
    {
      const auto hold = holdDataFolder(*folder);
      if (!hold) return 1;
      exitCode = runOn(DataFolder(*folder), run, qt, next, restoreFrom);
    }
    if (restoreFrom.empty()) {
      folder = next;
    } else {
      restoreAndTell(restoreFrom, *folder);
      run.noSplash = true;
    }
  }
  return exitCode;
}

int runSteps(const Options& options, GuardedApplication& qt) {
  QApplication::setCursorFlashTime(0);
  Steps steps(options.steps);
  steps.start();
  const int exitCode = runOnFolderOf(options, qt);
  return steps.failed() ? 1 : exitCode;
}

}  // namespace

int runProgram(int argumentCount, char** arguments) {
  Options options;
  if (const std::optional<int> done = readOptions(argumentCount, arguments, options)) return *done;
  ToolkitArguments toolkit(options.toolkitArguments);
  nameProgram(takesPicture(options) || !options.steps.empty());
  GuardedApplication qt(toolkit.count(), toolkit.pointers());
  if (toolkit.count() > 1) {
    std::cerr << "tallywick: " << toolkit.pointers()[1] << " is not an option; --help lists them\n";
    return 2;
  }
  const TextSize textSize;
  QGuiApplication::setWindowIcon(programIcon());
  try {
    return options.steps.empty() ? runOnFolderOf(options, qt) : runSteps(options, qt);
  } catch (const std::exception& error) {
    // Who started the program from the desktop sees no standard error.
    if (!takesPicture(options)) showWarning(QString::fromUtf8(error.what()));
    throw;
  }
}

}  // namespace tallywick
