// SPDX-License-Identifier: GPL-3.0-or-later
// Opens the main window on a data folder and ends when it is painted: `tallywick_window_actions FOLDER`. With
// ROUNDS behind it every action is timed as well, until everything that has changed is painted; with "walk"
// behind that, what is done in the windows alone instead.
#include "actions.h"
#include "core/random.h"
#include "painted_window.h"
#include "plays/judged_plays.h"
#include "reported_main.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/program/desk_actions.h"
#include "ui/qt/program/guarded_application.h"
#include "ui/qt/program/program.h"
#include "ui/qt/program/qt_platform.h"
#include "ui/qt/windows/text_size.h"
#include "window_steps.h"

#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace tallywick {
namespace {

int run(int count, char** arguments) {
  QCoreApplication::setOrganizationName(QStringLiteral("Tallywick"));
  QCoreApplication::setApplicationName(QStringLiteral("tallywick-bench"));
  GuardedApplication qt(count, arguments);
  if (count < 2) {
    std::fprintf(stderr, "usage: %s FOLDER [ROUNDS [walk]]\n", arguments[0]);
    return 2;
  }
  const TextSize textSize;
  const DataFolder folder{std::filesystem::path(arguments[1])};
  const FixedClock clock("11-20-2026", "12:00:00");
  MixingGenerator random(1);
  QtPlatform platform(folder);
  platform.answerAlone();
  Application application({folder, settingsAtStart(folder, platform), clock, random, platform, {}});
  std::optional<std::filesystem::path> next;
  connectDesk(application, platform, next);
  platform.desk.backUp = [&] { showBackups(application, platform); };
  bench::paint([&] { platform.run([&] { application.showMainWindow(); }); });
  if (count < 3) return 0;
  platform.windowOf(*application.find("Form1"))->finish();
  const int rounds = std::atoi(arguments[2]);
  if (count > 3) {
    bench::measureWindowSteps(toQString(arguments[1]), rounds);
    return 0;
  }
  // Nobody is there to answer: what a window asks by itself is closed.
  QTimer answers;
  QObject::connect(&answers, &QTimer::timeout, &answers, [] {
    if (QWidget* const dialog = QApplication::activeModalWidget()) dialog->close();
  });
  answers.start(20);
  bench::measureActions(
      [&](std::string_view step) {
        platform.run([&] { bench::perform(application, step); });
        QCoreApplication::processEvents();
      },
      rounds);
  return 0;
}

}  // namespace
}  // namespace tallywick

int main(int count, char** arguments) {
  return tallywick::bench::reported(tallywick::run, count, arguments);
}
