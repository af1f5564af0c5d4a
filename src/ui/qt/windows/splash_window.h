// SPDX-License-Identifier: GPL-3.0-or-later
// The splash: the program's name and version, on the screen until its timer fires.
#pragma once

#include "ui/qt/binding/form_window.h"

namespace tallywick {

class SplashForm;

class SplashWindow : public FormWindow {
 public:
  SplashWindow(SplashForm& form, const Desk& desk);
  QString helpPage() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* frame_;
};

}  // namespace tallywick
