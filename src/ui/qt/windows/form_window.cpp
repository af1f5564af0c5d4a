// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/form_window.h"

#include "app/main_form.h"
#include "app/small_windows.h"
#include "core/text.h"
#include "selection/selection_form.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/windows/about_window.h"
#include "ui/qt/windows/main_window.h"
#include "ui/qt/windows/selection_window.h"
#include "ui/qt/windows/splash_window.h"

#include <QCloseEvent>
#include <QShortcut>
#include <stdexcept>

namespace tallywick {

namespace {

std::unique_ptr<FormWindow> windowOf(Form& form, const Desk& desk) {
  if (auto* main = dynamic_cast<MainForm*>(&form)) return std::make_unique<MainWindow>(*main, desk);
  if (auto* selection = dynamic_cast<SelectionForm*>(&form)) {
    return std::make_unique<SelectionWindow>(*selection, desk);
  }
  if (auto* splash = dynamic_cast<SplashForm*>(&form)) return std::make_unique<SplashWindow>(*splash, desk);
  if (auto* about = dynamic_cast<AboutForm*>(&form)) return std::make_unique<AboutWindow>(*about, desk);
  throw std::logic_error(join("no window for ", form.name()));
}

}  // namespace

FormWindow::FormWindow(Form& form, const Desk& desk)
    : form_(form), desk_(desk), binding_(form, desk.runner, desk.folder) {
  setObjectName(toQString(form.name()));
  setWindowTitle(toQString(form.title()));
  binding_.onPress = desk_.press;
}

void FormWindow::answerHelpKey() {
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this,
          [this] { desk_.runner.attempt([this] { desk_.help(helpPage()); }); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (binding_.isReleased()) {
    event->accept();
    return;
  }
  // The model decides; it takes the window off the screen itself.
  event->ignore();
  desk_.runner.run([this] {
    if (mayClose()) desk_.close(form_);
  });
}

std::unique_ptr<FormWindow> makeWindow(Form& form, const Desk& desk) {
  auto window = windowOf(form, desk);
  window->binding().requireEveryControl();
  form.takeChanges();
  return window;
}

}  // namespace tallywick
