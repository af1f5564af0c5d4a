// SPDX-License-Identifier: GPL-3.0-or-later
// The about box.
#pragma once

#include "ui/qt/binding/form_window.h"

namespace tallywick {

class AboutForm;

class AboutWindow : public FormWindow {
 public:
  AboutWindow(AboutForm& form, const Desk& desk);
  QString helpPage() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace tallywick
