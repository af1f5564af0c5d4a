// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/windows/make_window.h"

#include "app/main_form.h"
#include "app/small_windows.h"
#include "core/text.h"
#include "selection/selection_form.h"
#include "ui/qt/windows/about_window.h"
#include "ui/qt/windows/main_window.h"
#include "ui/qt/windows/selection_window.h"
#include "ui/qt/windows/splash_window.h"

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

std::unique_ptr<FormWindow> makeWindow(Form& form, const Desk& desk) {
  auto window = windowOf(form, desk);
  window->binding().requireEveryControl();
  form.takeChanges();
  return window;
}

}  // namespace tallywick
