// SPDX-License-Identifier: GPL-3.0-or-later
// The windows during an update: they stay alive, take no input but Cancel and the closing of a window, and go
// on afterwards.
#include "app/main_form.h"
#include "qt/desk_fixture.h"
#include "support/fake_transfer.h"
#include "ui/qt/parts/picker.h"
#include "ui/qt/windows/transfer_panel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

namespace tallywick::test {
namespace {

class Updating : public Desktop {
 protected:
  Updating() {
    scratch.write("PWF.TXT", "word");
    scratch.write("PWF2.TXT", "name");
    newTransfer = fakeTransfers(log, [this](std::string_view) { transfer(); });
    open("Form1").show();
    Settings settings;
    settings.server = "127.0.0.1";
    application.setSettings(settings);
  }

  /// Goes on until it is cancelled; `meanwhile` happens while the program handles what waits for its windows.
  void transfer() {
    QTimer::singleShot(0, meanwhile);
    for (int look = 0; look < 2000; ++look) {
      platform.progress({2048, 1, 3});
      if (platform.cancelled()) throw TransferCancelled();
      QTest::qSleep(1);
    }
    FAIL() << "nobody has cancelled it";
  }
  void update() {
    answerNextBox(QMessageBox::Ok);
    window("Form1").findChild<QAction*>(QStringLiteral("mnuPowerBall2"))->trigger();
  }
  TransferPanel& panel() { return *window("Form1").transferPanel(); }

  FakeTransfer::Log log;
  std::function<void()> meanwhile;
};

TEST_F(Updating, TakesNoInputButCancelAndGoesOn) {
  auto& typed = *widget<Picker>("Form1", "Combo4").lineEdit();
  QString shown;
  meanwhile = [&] {
    shown = panel().findChild<QLabel*>()->text();
    QTest::keyClicks(&typed, QStringLiteral("11"));
    QTest::mouseClick(&panel().button(), Qt::LeftButton);
  };
  update();
  EXPECT_EQ(shown, QStringLiteral("1 of 3 files, 2.0 KiB"));
  EXPECT_EQ(typed.text(), QString());
  EXPECT_TRUE(panel().isHidden());
  EXPECT_FALSE(platform.ended());
  EXPECT_EQ(widget<QLabel>("Form1", "StatusBar1").text(), QStringLiteral("The update was cancelled"));
  EXPECT_FALSE(widget<QPushButton>("Form1", "Command2").isHidden());
  const auto transfers = log.size();
  update();
  EXPECT_GT(log.size(), transfers) << "it cannot be started again";
}

TEST_F(Updating, ThatIsCutShortByClosingTheMainWindowEndsTheProgram) {
  open("Form3");
  meanwhile = [&] {
    window("Form3").close();
    EXPECT_FALSE(platform.cancelled()) << "the update has nothing to do with that window";
    window("Form1").close();
    EXPECT_NE(application.find("Form1"), nullptr) << "the handler still works on it";
  };
  update();
  EXPECT_TRUE(application.windows().empty());
  EXPECT_TRUE(platform.ended());
  EXPECT_EQ(platform.exitCode(), 0);
}

}  // namespace
}  // namespace tallywick::test
