// SPDX-License-Identifier: GPL-3.0-or-later
// The menu bar, made from the model's menu entries in their order.
#pragma once

class QMenuBar;

namespace tallywick {

class Binding;
class Form;

void fillMenuBar(QMenuBar& bar, Form& form, Binding& binding);

}  // namespace tallywick
