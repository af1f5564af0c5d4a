// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/screenshot.h"

#include "app/application.h"
#include "ui/qt/program/options.h"
#include "ui/qt/program/qt_platform.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QStringList>
#include <iostream>

namespace tallywick {

namespace {

/// The control of that name in the window opened last that has one.
Control* findControl(const Application& application, const std::string& name) {
  const std::vector<Form*> windows = application.windows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (Control* control = (*window)->find(name)) return control;
  }
  return nullptr;
}

int fail(const std::string& what) {
  std::cerr << "tallywick: " << what << '\n';
  return 1;
}

void resizeTo(QWidget& window, const std::string& size) {
  const QStringList sides = toQString(size).split(QLatin1Char('x'));
  if (sides.size() == 2) window.resize(sides[0].toInt(), sides[1].toInt());
}

void open(Application& application, const QtPlatform& platform, const Options& options) {
  if (options.window == "frmSplash") {
    application.showSplash();
    return;
  }
  application.showMainWindow();
  platform.windowOf(*application.find("Form1"))->finish();
  static_cast<TabStrip*>(application.find("Form1")->find("SSTab1"))->setTab(options.page);
}

}  // namespace

int takeScreenshot(Application& application, QtPlatform& platform, const Options& options) {
  platform.run([&] { open(application, platform, options); });
  for (const std::string& name : options.press) {
    Control* control = findControl(application, name);
    if (control == nullptr) return fail("there is no control " + name);
    platform.run([&] { click(*control); });
  }
  if (platform.ended()) return platform.exitCode();
  const Form* form = application.find(options.window);
  if (form == nullptr) return fail("the window " + options.window + " is not open");
  FormWindow& window = *platform.windowOf(*form);
  resizeTo(window, options.size);
  QCoreApplication::processEvents();
  if (!window.grab().save(toQString(options.screenshot)))
    return fail(options.screenshot + " cannot be written");
  return 0;
}

}  // namespace tallywick
