// SPDX-License-Identifier: GPL-3.0-or-later
// The controls, without any toolkit: the properties that the handlers use, and nothing else. A control
// registers with its form when it is constructed and reports every change to it; a binding shows the changes.
#pragma once

#include "controls/color.h"
#include "controls/form.h"
#include "controls/text_lines.h"
#include "core/text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

enum class ControlType : std::uint8_t {
  button,
  label,
  list,
  combo,
  frame,
  tabs,
  chart,
  image,
  progress,
  status,
  menu,
  option,
};

class Control {
 public:
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& name() const { return name_; }
  ControlType type() const { return type_; }

 protected:
  Control(Form& form, std::string_view name, ControlType type);

  /// Sets a property and marks the control as changed where it was another value.
  template <typename Property, typename Value>
  void change(Property& property, const Value& value) {
    if (property == value) return;
    property = value;
    touch();
  }
  void touch() {
    if (!changed_) noteChange();
  }

 private:
  friend class Form;
  void noteChange();

  Form& form_;
  std::string name_;
  ControlType type_;
  bool changed_ = false;
};

/// What every control has that can be hidden.
class VisibleControl : public Control {
 public:
  bool visible() const { return visible_; }
  void show() { setVisible(true); }
  void hide() { setVisible(false); }
  void setVisible(bool visible) { change(visible_, visible); }

 protected:
  using Control::Control;

 private:
  bool visible_ = true;
};

class Button : public VisibleControl {
 public:
  Button(Form& form, std::string_view name, std::string_view caption = {})
      : VisibleControl(form, name, ControlType::button), caption_(caption) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption) { change(caption_, caption); }
  Color backColor() const { return backColor_; }
  void setBackColor(Color color) { change(backColor_, color); }
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled) { change(enabled_, enabled); }
  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(std::string_view toolTip) { change(toolTip_, toolTip); }

  /// What a press runs; set where the window is put together.
  std::function<void()> onClick;

 private:
  std::string caption_;
  Color backColor_ = colors::buttonFace;
  bool enabled_ = true;
  std::string toolTip_;
};

/// A caption shows a doubled ampersand as one.
class Label : public VisibleControl {
 public:
  Label(Form& form, std::string_view name, std::string_view caption = {})
      : VisibleControl(form, name, ControlType::label), caption_(caption) {}

  const std::string& caption() const { return caption_; }
  void setCaption(std::string_view caption) { change(caption_, caption); }

 private:
  std::string caption_;
};

/// What lists and drop-downs have in common.
class ItemsControl : public VisibleControl {
 public:
  const TextLines& items() const { return items_; }
  void add(std::string_view item) {
    items_.add(item);
    touch();
  }
  /// Adds one item, the pieces one after the other.
  template <typename... Pieces>
  void addJoined(const Pieces&... pieces) {
    char* to = addItem((std::string_view(pieces).size() + ...));
    ((to = put(to, pieces)), ...);
  }
  /// Adds an item of `size` characters, which the caller writes to where this points.
  char* addItem(std::size_t size) {
    touch();
    return items_.addLine(size);
  }
  /// Takes the items of another control; they are in memory only once.
  void shareItems(const ItemsControl& other) {
    items_.share(other.items_);
    touch();
  }

 protected:
  using VisibleControl::VisibleControl;
  void clearItems() {
    items_.clear();
    touch();
  }

 private:
  TextLines items_;
};

class ListBox : public ItemsControl {
 public:
  ListBox(Form& form, std::string_view name) : ItemsControl(form, name, ControlType::list) {}

  void clear();
  /// Texts that a binding may emphasise in the items, for example the numbers searched for; clear() empties
  /// them.
  const std::vector<std::string>& emphasis() const { return emphasis_; }
  void setEmphasis(std::vector<std::string> texts);

 private:
  std::vector<std::string> emphasis_;
};

/// A drop-down: a text and a list of items, which are independent of each other until an item is chosen.
class ComboBox : public ItemsControl {
 public:
  ComboBox(Form& form, std::string_view name) : ItemsControl(form, name, ControlType::combo) {}

  const std::string& text() const { return text_; }
  void setText(std::string_view text) { change(text_, text); }
  /// Empties the items and the text.
  void clear();

 private:
  std::string text_;
};

class Frame : public VisibleControl {
 public:
  Frame(Form& form, std::string_view name) : VisibleControl(form, name, ControlType::frame) {}
};

class TabStrip : public Control {
 public:
  TabStrip(Form& form, std::string_view name, int tabs)
      : Control(form, name, ControlType::tabs), tabs_(tabs) {}

  /// From 0.
  int tab() const { return tab_; }
  void setTab(int tab) { change(tab_, tab); }
  int tabs() const { return tabs_; }

 private:
  int tabs_;
  int tab_ = 0;
};

/// A bar chart. What is set is shown by draw().
class Chart : public Control {
 public:
  struct Bar {
    double value;
    std::string label;
    Color color;
  };

  Chart(Form& form, std::string_view name) : Control(form, name, ControlType::chart) {}

  const std::string& title() const { return title_; }
  const std::vector<Bar>& bars() const { return bars_; }
  void clear();
  void setTitle(std::string_view title) { title_ = title; }
  void addBar(double value, std::string_view label, Color color);
  void draw() { touch(); }

 private:
  std::string title_;
  std::vector<Bar> bars_;
};

/// A picture of a numbered ball. Where the picture file is missing a binding draws the ball itself.
class Image : public Control {
 public:
  Image(Form& form, std::string_view name, bool isExtraBall)
      : Control(form, name, ControlType::image), isExtraBall_(isExtraBall) {}

  /// The path as the program writes it, or empty where no picture goes with the number.
  const std::string& picture() const { return picture_; }
  const std::string& number() const { return number_; }
  bool isExtraBall() const { return isExtraBall_; }
  /// Shows the picture anew even where the path is the same: its file may have changed.
  void load(std::string_view picture, std::string_view number);

 private:
  bool isExtraBall_;
  std::string picture_;
  std::string number_;
};

class ProgressBar : public VisibleControl {
 public:
  ProgressBar(Form& form, std::string_view name) : VisibleControl(form, name, ControlType::progress) {}

  /// 0 to 100.
  int value() const { return value_; }
  void setValue(int value) { change(value_, value); }

 private:
  int value_ = 0;
};

class StatusBar : public Control {
 public:
  StatusBar(Form& form, std::string_view name, std::size_t panels)
      : Control(form, name, ControlType::status), panels_(panels) {}

  const std::vector<std::string>& panels() const { return panels_; }
  /// `panel` counts from 1, as the texts that speak of panels do.
  void setPanel(std::size_t panel, std::string_view text) { change(panels_.at(panel - 1), text); }

 private:
  std::vector<std::string> panels_;
};

/// An entry of the menu bar, of a menu or of a sub-list. Its ampersand marks the mnemonic.
class MenuEntry : public Control {
 public:
  /// An entry of the menu bar.
  MenuEntry(Form& form, std::string_view name, std::string_view caption)
      : Control(form, name, ControlType::menu), caption_(caption) {}
  /// An entry of the menu or sub-list that `parent` opens; the caption "-" makes a separator line.
  MenuEntry(Form& form, std::string_view name, std::string_view caption, const MenuEntry& parent)
      : Control(form, name, ControlType::menu), caption_(caption), parent_(&parent) {}

  const std::string& caption() const { return caption_; }
  bool isSeparator() const { return caption_ == "-"; }
  const MenuEntry* parent() const { return parent_; }
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled) { change(enabled_, enabled); }

  /// Empty for entries that only open a list.
  std::function<void()> onClick;

 private:
  std::string caption_;
  const MenuEntry* parent_ = nullptr;
  bool enabled_ = true;
};

class OptionButton : public VisibleControl {
 public:
  OptionButton(Form& form, std::string_view name, std::string_view caption)
      : VisibleControl(form, name, ControlType::option), caption_(caption) {}

  const std::string& caption() const { return caption_; }
  bool value() const { return value_; }
  void setValue(bool value) { change(value_, value); }

  /// Sets this one and takes back the others of its group; set where the window is put together.
  std::function<void()> onClick;

 private:
  std::string caption_;
  bool value_ = false;
};

/// Runs what a click on `control` runs. False, with nothing run, where the control itself is hidden or
/// disabled.
bool click(Control& control);

}  // namespace tallywick
