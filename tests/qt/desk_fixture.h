// SPDX-License-Identifier: GPL-3.0-or-later
// The program's windows over a scratch data folder, without a display.
#pragma once

#include "app/application.h"
#include "selection/selection_fixture.h"
#include "support/scratch_folder.h"
#include "ui/qt/program/qt_platform.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

namespace tallywick::test {

class Desktop : public testing::Test {
 protected:
  enum class Transfers { fake, real };

  explicit Desktop(Transfers transfers = Transfers::fake) : transfers_(transfers) {
    scratch.write("QZRNUM22.DTE", calendar());
    platform.onClose = [this](Form& form) { application.close(form); };
    platform.onEditSettings = [] {};
    platform.onHelp = [this](const QString& page) { helpPage = page; };
  }

  FormWindow& open(std::string_view name) {
    platform.run([&] {
      if (name == "frmSplash") {
        application.showSplash();
        return;
      }
      if (application.find("Form1") == nullptr) application.showMainWindow();
      if (name == "Form3") application.openSelection(powerBall);
      if (name == "Form5") application.openSelection(megaMillions);
      if (name == "frmAbout") click(*application.find("Form1")->find("mnuAbout"));
    });
    return window(name);
  }

  FormWindow& window(std::string_view name) {
    const Form* form = application.find(name);
    if (form == nullptr) throw std::logic_error(std::string(name) + " is not open");
    return *platform.windowOf(*form);
  }

  /// The widget of a control, by its designer name.
  template <typename Widget>
  Widget& widget(std::string_view windowName, const char* name) {
    auto* found = window(windowName).findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) throw std::logic_error(std::string("no widget ") + name);
    return *found;
  }

  /// Looks at the message box that the next action shows, and presses one of its buttons.
  void answerNextBox(QMessageBox::StandardButton answer) {
    QTimer::singleShot(0, [this, answer] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      boxTitle = box->windowTitle();
      boxText = box->text();
      boxIcon = box->icon();
      box->button(answer)->click();
    });
  }

  const Transfers transfers_;
  ScratchFolder scratch;
  StandingClock clock{"11-21-2026", "12:00:00"};
  MixingGenerator random{1};
  QtPlatform platform{scratch.folder()};
  TransferFactory newTransfer;
  Application application{
      {scratch.folder(),
       {},
       clock,
       random,
       platform,
       transfers_ == Transfers::real ? TransferFactory() : [this] { return newTransfer(); }}};
  QString helpPage;
  QString boxTitle;
  QString boxText;
  QMessageBox::Icon boxIcon = QMessageBox::NoIcon;
};

}  // namespace tallywick::test
