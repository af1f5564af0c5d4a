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
    platform.desk.close = [this](Form& form) { application.close(form); };
    platform.desk.editSettings = [] {};
    platform.desk.help = [this](const QString& page) { helpPage = page; };
  }

  FormWindow& open(std::string_view name) {
    platform.run([&] {
      if (name == "frmSplash") {
        application.showSplash();
        return;
      }
      if (application.find("Form1") == nullptr) application.showMainWindow();
      window("Form1").finish();
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

  /// One of the window's own widgets, by its name for screen readers.
  template <typename Widget>
  Widget& named(std::string_view windowName, const QString& name) {
    for (auto* each : window(windowName).findChildren<Widget*>()) {
      if (each->accessibleName() == name) return *each;
    }
    throw std::logic_error("no widget " + name.toStdString());
  }

  /// Looks at the message box that the next action shows, and presses one of its buttons.
  void answerNextBox(QMessageBox::StandardButton answer) {
    answerNextBox([answer](const QMessageBox& box) { return box.button(answer); });
  }
  /// The same by the button's text, without its mnemonic.
  void answerNextBox(const QString& text) {
    answerNextBox([text](const QMessageBox& box) -> QAbstractButton* {
      for (QAbstractButton* button : box.buttons()) {
        if (button->text().remove(u'&') == text) return button;
      }
      return nullptr;
    });
  }
  void answerNextBox(const std::function<QAbstractButton*(const QMessageBox&)>& buttonOf) {
    QTimer::singleShot(0, [this, buttonOf] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      boxTitle = box->windowTitle();
      boxText = box->text();
      boxIcon = box->icon();
      QAbstractButton* button = buttonOf(*box);
      ASSERT_NE(button, nullptr);
      button->click();
    });
  }

  const Transfers transfers_;
  ScratchFolder scratch;
  FixedClock clock{"11-21-2026", "12:00:00"};
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
