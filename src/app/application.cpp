// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/application.h"

#include "app/game_pages.h"
#include "core/journal.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>
#include <utility>

namespace tallywick {

Application::Application(Surroundings surroundings) : surroundings_(std::move(surroundings)) {}

Application::~Application() {
  try {
    closeAll();
  } catch (const std::exception&) {
    // The program ends; there is nobody left to show it to.
  }
}

void Application::showSplash() {
  open(std::make_unique<SplashForm>());
}

void Application::splashTimer() {
  const Form* splash = find("frmSplash");
  if (splash == nullptr) return;
  if (main_ == nullptr) showMainWindow();
  close(*splash);
}

void Application::showMainWindow() {
  recover();
  auto form = std::make_unique<MainForm>();
  startUp(*form, surroundings_.folder);
  main_ = form.get();
  wireMainWindow();
  open(std::move(form));
  showRecoveryNotices();
}

/// Where it cannot be finished now, the next action on the folder tries again and reports it.
void Application::recover() const {
  for (const GameInfo* game : allGames) {
    try {
      recoverFolder(surroundings_.folder.resolve(game->folder));
    } catch (const std::exception&) {
      continue;
    }
  }
}

void Application::showRecoveryNotices() const {
  for (std::string& notice : takeRecoveryNotices()) {
    showMessage(surroundings_.platform, std::move(notice), MessageBox::Icon::exclamation);
  }
}

std::function<void()> Application::onFiles(std::function<void()> action) const {
  return [this, action = std::move(action)] {
    recover();
    showRecoveryNotices();
    action();
    showRecoveryNotices();
  };
}

std::vector<Form*> Application::windows() const {
  std::vector<Form*> windows;
  for (const auto& window : windows_) windows.push_back(window.get());
  return windows;
}

Form* Application::find(std::string_view name) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return window->name() == name; });
  return found == windows_.end() ? nullptr : found->get();
}

void Application::close(const Form& form) {
  if (&form == main_) {
    exit();
    return;
  }
  const auto found = std::find_if(windows_.begin(), windows_.end(),
                                  [&](const auto& window) { return window.get() == &form; });
  if (found == windows_.end()) return;
  surroundings_.platform.closeWindow(**found);
  closed_.push_back(std::move(*found));
  windows_.erase(found);
  if (windows_.empty()) surroundings_.platform.endProgram();
}

void Application::openSelection(const GameInfo& game) {
  const Surroundings& around = surroundings_;
  auto window = std::make_unique<SelectionForm>(
      game, SelectionSurroundings{around.folder, around.clock, around.random, around.platform});
  const Form* old = find(window->name());
  // While another program is at the play files, the open window keeps the plays selected in it.
  if (!window->load() && old != nullptr) return;
  if (old != nullptr) close(*old);
  for (Button* action : {&window->Command59, &window->Command9, &window->Command5}) {
    action->onClick = onFiles(std::move(action->onClick));
  }
  open(std::move(window));
}

void Application::exit() {
  closeAll();
  surroundings_.platform.endProgram();
}

void Application::closeAll() {
  main_ = nullptr;
  while (!windows_.empty()) {
    surroundings_.platform.closeWindow(*windows_.back());
    closed_.push_back(std::move(windows_.back()));
    windows_.pop_back();
  }
}

template <typename Window>
Window& Application::open(std::unique_ptr<Window> window) {
  closed_.clear();
  Window& opened = *window;
  surroundings_.platform.openWindow(windows_.emplace_back(std::move(window)));
  return opened;
}

void Application::showAbout() {
  if (const Form* old = find("frmAbout")) close(*old);
  auto& about = open(std::make_unique<AboutForm>());
  about.cmdOK.onClick = [this, &about] { close(about); };
  about.cmdSysInfo.onClick = [this] { showSystemInformation(); };
}

void Application::showSystemInformation() {
  Platform& platform = surroundings_.platform;
  std::string program = platform.registryValue(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)", "PATH");
  if (program.empty()) {
    const std::string folder =
        platform.registryValue(R"(SOFTWARE\Microsoft\Shared Tools Location)", "MSINFO");
    if (!folder.empty()) program = folder + R"(\MSINFO32.EXE)";
  }
  try {
    // A path left behind by a removed program, or one with a variable in it, leads to no file.
    if (program.empty() || !platform.fileExists(program)) throw RuntimeError(ErrorNumber::fileNotFound);
    platform.start(program, "");
  } catch (const RuntimeError&) {
    showMessage(platform, "System Information Is Unavailable At This Time");
  }
}

void Application::openSettingPage(const std::string& address, std::string_view what) {
  if (!address.empty()) {
    surroundings_.platform.openPage(address);
    return;
  }
  showMessage(surroundings_.platform, join("The address of the ", what,
                                           " is not set. It stands in the settings, ", settingsFile, "."));
}

}  // namespace tallywick
