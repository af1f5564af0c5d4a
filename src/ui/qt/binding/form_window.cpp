// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/binding/form_window.h"

#include "ui/qt/parts/handler_runner.h"

#include <QCloseEvent>
#include <QShortcut>

namespace tallywick {

FormWindow::FormWindow(Form& form, const Desk& desk)
    : form_(form), desk_(desk), binding_(form, desk.runner, desk.folder) {
  setObjectName(toQString(form.name()));
  setWindowTitle(toQString(form.title()));
  binding_.onPress = desk_.press;
}

void FormWindow::answerHelpKey() {
  auto* help = new QShortcut(QKeySequence::HelpContents, this);
  connect(help, &QShortcut::activated, this,
          [this] { desk_.runner.attempt([this] { desk_.help(helpPage()); }); });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  if (binding_.isReleased()) {
    event->accept();
    return;
  }
  // The model decides; it takes the window off the screen itself.
  event->ignore();
  desk_.runner.run([this] {
    if (mayClose()) desk_.close(form_);
  });
}

}  // namespace tallywick
