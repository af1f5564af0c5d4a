// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/binding/binding.h"

#include "core/text.h"
#include "ui/qt/parts/choice_list.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"

#include <QAccessible>
#include <QWidget>
#include <stdexcept>
#include <utility>

namespace tallywick {

namespace {

void announce(QWidget& widget) {
  QAccessibleEvent named(&widget, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&named);
  QAccessibleEvent alert(&widget, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace

Binding::Binding(Form& form, HandlerRunner& runner, const DataFolder& folder)
    : form_(&form), runner_(runner), folder_(folder) {}

void Binding::enter(Control& control, QObject& widget, std::function<void()> show) {
  if (!bound_.emplace(&control, Bound{&widget, std::move(show)}).second) {
    throw std::logic_error(join(form_->name(), ": ", control.name(), " has two widgets"));
  }
  widget.setObjectName(toQString(control.name()));
  bound_.at(&control).show();
}

void Binding::partMade() {
  --awaited_;
  requireEveryControl();
}

void Binding::requireEveryControl() const {
  if (awaited_ > 0) return;
  std::string missing;
  for (const Control* control : form_->controls()) {
    if (!bound_.contains(control)) missing += " " + control->name();
  }
  if (!missing.empty()) throw std::logic_error(join(form_->name(), ": no widget for", missing));
}

void Binding::showChanges() {
  if (form_ == nullptr) return;
  for (const Control* control : form_->takeChanges()) {
    // What has no widget yet will be shown as it is then.
    const auto found = bound_.find(control);
    if (found == bound_.end() || found->second.widget == nullptr) continue;
    found->second.show();
    if (auto* widget = qobject_cast<QWidget*>(found->second.widget);
        widget != nullptr && announced_.contains(control)) {
      announce(*widget);
    }
  }
  if (afterChanges) afterChanges();
}

void Binding::release() {
  for (const auto& [control, bound] : bound_) {
    if (auto* list = qobject_cast<LineList*>(bound.widget)) list->setModel(nullptr);
    if (auto* picker = dynamic_cast<Picker*>(bound.widget.data())) picker->forgetLines();
    if (auto* choice = dynamic_cast<ChoiceList*>(bound.widget.data())) choice->list().setModel(nullptr);
  }
  bound_.clear();
  form_ = nullptr;
}

void Binding::press(Control& control) {
  if (form_ == nullptr) return;
  runner_.run([this, &control] {
    if (onPress) {
      onPress(control);
    } else {
      click(control);
    }
  });
}

void Binding::take(const std::function<void()>& change) {
  if (form_ != nullptr) runner_.run(change);
}

}  // namespace tallywick
