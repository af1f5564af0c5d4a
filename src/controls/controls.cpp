// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/controls.h"

#include <utility>

namespace tallywick {

namespace {

bool run(const std::function<void()>& handler) {
  // A copy, since a handler may close the window that contains the control.
  const std::function<void()> running = handler;
  if (running) running();
  return true;
}

}  // namespace

std::string Color::text() const {
  if (kind == Kind::buttonFace) return "buttonFace";
  if (kind == Kind::threeDLight) return "3dLight";
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string text = "#";
  for (const std::uint8_t part : {red, green, blue}) {
    text += digits[part >> 4U];
    text += digits[part & 0xFU];
  }
  return text;
}

Control::Control(Form& form, std::string_view name, ControlType type)
    : form_(form), name_(name), type_(type) {
  form_.enter(*this);
}

void Control::noteChange() {
  changed_ = true;
  form_.noteChange(*this);
}

void ListBox::clear() {
  clearItems();
  emphasis_.clear();
}

void ListBox::setEmphasis(std::vector<std::string> texts) {
  std::erase(texts, "");
  emphasis_ = std::move(texts);
  touch();
}

void ComboBox::clear() {
  clearItems();
  text_.clear();
}

void Chart::clear() {
  title_.clear();
  bars_.clear();
}

void Chart::addBar(double value, std::string_view label, Color color) {
  bars_.push_back({value, std::string(label), color});
}

void Image::load(std::string_view picture, std::string_view number) {
  picture_ = picture;
  number_ = number;
  touch();
}

bool click(Control& control) {
  switch (control.type()) {
    case ControlType::button: {
      const auto& button = static_cast<const Button&>(control);
      return button.visible() && button.enabled() && run(button.onClick);
    }
    case ControlType::menu: {
      const auto& entry = static_cast<const MenuEntry&>(control);
      return entry.enabled() && run(entry.onClick);
    }
    case ControlType::option: {
      const auto& option = static_cast<const OptionButton&>(control);
      return option.visible() && run(option.onClick);
    }
    default:
      return false;
  }
}

}  // namespace tallywick
