// SPDX-License-Identifier: GPL-3.0-or-later
// Which window belongs to which form of the model.
#pragma once

#include <memory>

namespace tallywick {

struct Desk;
class Form;
class FormWindow;

/// The window for a form of the model. Every control of the form has its widget.
std::unique_ptr<FormWindow> makeWindow(Form& form, const Desk& desk);

}  // namespace tallywick
