// SPDX-License-Identifier: GPL-3.0-or-later
// A window's model: it owns nothing but the knowledge of its controls, which register under their designer
// names.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tallywick {

class Control;

class Form {
 public:
  explicit Form(std::string name) : name_(std::move(name)) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  const std::string& title() const { return title_; }
  void setTitle(std::string_view title) { title_ = title; }

  /// The control of that designer name or alias; null where there is none.
  Control* find(std::string_view name) const;

  /// All controls in the order of their construction.
  const std::vector<Control*>& controls() const { return controls_; }

  /// Lets a control be found by a second name, for example a number button by its number.
  void addAlias(std::string_view alias, Control& control);

  /// The controls that changed since the last call, each once.
  std::vector<Control*> takeChanges();

 private:
  friend class Control;
  void enter(Control& control);
  void noteChange(Control& control) { changed_.push_back(&control); }

  std::string name_;
  std::string title_;
  std::vector<Control*> controls_;
  std::unordered_map<std::string, Control*> byName_;
  std::vector<Control*> changed_;
};

}  // namespace tallywick
