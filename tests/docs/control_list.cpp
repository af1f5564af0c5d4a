// SPDX-License-Identifier: GPL-3.0-or-later
// Prints every control of every window for scripts/control-table: form, name, type, caption after start-up on
// an empty record book, and whether a press does something, with tabs between.
#include "support/fake_platform.h"

#include <array>
#include <iostream>

namespace tallywick {
namespace {

constexpr std::array<std::string_view, 12> typeNames = {"button",   "label",  "list",  "drop-down",
                                                        "frame",    "tabs",   "chart", "image",
                                                        "progress", "status", "menu",  "option"};

struct Shown {
  std::string caption;
  bool isPressed = false;
};

template <typename Pressed>
Shown pressed(const Control& control) {
  const auto& shown = static_cast<const Pressed&>(control);
  return {shown.caption(), shown.onClick != nullptr};
}

Shown shownBy(const Control& control) {
  switch (control.type()) {
    case ControlType::button:
      return pressed<Button>(control);
    case ControlType::menu:
      return pressed<MenuEntry>(control);
    case ControlType::option:
      return pressed<OptionButton>(control);
    case ControlType::label:
      return {static_cast<const Label&>(control).caption()};
    default:
      return {};
  }
}

/// `unlisted` is left out of the captions: the table does not change with each release.
void print(const Form& form, std::string_view unlisted = {}) {
  for (const Control* control : form.controls()) {
    Shown shown = shownBy(*control);
    if (!unlisted.empty() && shown.caption.ends_with(unlisted)) {
      shown.caption.replace(shown.caption.size() - unlisted.size(), unlisted.size(), "…");
    }
    std::cout << form.name() << '\t' << control->name() << '\t'
              << typeNames.at(static_cast<std::size_t>(control->type())) << '\t' << shown.caption << '\t'
              << (shown.isPressed ? "pressed" : "") << '\n';
  }
}

void printAll() {
  const test::ScratchFolder scratch;
  test::FakePlatform platform;
  const FixedClock clock{"12-28-2026", "12:00:00"};
  MixingGenerator random{1};
  Application application{{scratch.folder(), {}, clock, random, platform, {}}};
  application.showMainWindow();
  application.openSelection(powerBall);
  application.openSelection(megaMillions);
  click(*application.find("Form1")->find("mnuAbout"));
  for (const Form* form : application.windows()) print(*form);
  print(SplashForm(), programVersion());
}

}  // namespace
}  // namespace tallywick

int main() {
  try {
    tallywick::printAll();
  } catch (const std::exception& error) {
    std::cerr << "control_list: " << error.what() << '\n';
    return 1;
  }
}
