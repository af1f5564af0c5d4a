// SPDX-License-Identifier: GPL-3.0-or-later
// The windows during an update: they stay alive, take no input but Cancel and the closing of a window, and go
// on afterwards.
#include "app/main_form.h"
#include "core/day.h"
#include "qt/desk_fixture.h"
#include "support/fake_transfer.h"
#include "ui/qt/parts/picker.h"
#include "ui/qt/program/desk_actions.h"
#include "ui/qt/windows/transfer_panel.h"
#include "update/ftp_servers.h"

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

/// A record book over a portal of the test's own.
class Portal : public Desktop {
 protected:
  Portal() : Desktop(Transfers::real) {
    const std::string certificate = (web.root() / "certificate").string();
    makeCertificate(certificate);
    server = std::make_unique<ServerProcess>(
        "web_server.py", std::vector<std::string>{certificate, (web.root() / "log").string()});
    for (const char* file : {"PWF.TXT", "PWF2.TXT"}) scratch.write(file, "word");
    put(newest);
    platform.desk.press = [this](Control& control) { press(application, platform, control); };
    platform.desk.updateNote = [this] { return application.noteOfUpdate(); };
    platform.desk.showsMadeUpDraws = [this] { return application.showsMadeUpDraws(); };
    platform.desk.updateAgain = [this] { application.updateAgain(); };
    use("file/pwr.csv", "file/meg.csv");
    open("Form1").show();
    answering.callOnTimeout([this] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return;
      boxes.push_back(box->text().section(u'\n', 0, 0).toStdString());
      boxText = box->text();
      const bool isQuestion = box->standardButtons().testFlag(answer);
      box->button(isQuestion ? answer : QMessageBox::Ok)->click();
    });
    answering.start(1);
  }

  /// Both games' draws of 110 days up to `last`.
  void put(Day last, const std::string& lastRow = "") const {
    std::string powerBallRows = "Draw Date,Winning Numbers,Multiplier\n";
    std::string megaMillionsRows = "Draw Date,Winning Numbers,Mega Ball,Multiplier\n";
    for (Day day = last; last - day < 110; day += -1) {
      powerBallRows += displayDate(day) + ",10 20 30 40 50 06,2\n";
      megaMillionsRows += displayDate(day) + ",10 20 30 40 50,06,2\n";
    }
    putText(web.root() / "pwr.csv", powerBallRows + lastRow);
    putText(web.root() / "meg.csv", megaMillionsRows);
  }
  void use(const std::string& powerBallPath, const std::string& megaMillionsPath) {
    Settings settings;
    settings.powerBallDraws = "http://" + server->address() + "/" + powerBallPath;
    settings.megaMillionsDraws = "http://" + server->address() + "/" + megaMillionsPath;
    application.setSettings(settings);
  }
  void update() { widget<QPushButton>("Form1", "Command2").click(); }
  QPushButton& button(const char* text) {
    const QList<QPushButton*> buttons = window("Form1").findChildren<QPushButton*>();
    return **std::ranges::find_if(buttons, [text](const QPushButton* each) {
      return each->text().remove(u'&') == QString::fromUtf8(text);
    });
  }
  std::string newestLine() {
    return std::string(static_cast<ListBox*>(application.find("Form1")->find("List1"))->items()[0]);
  }

  const Day newest = dayOf(2026, 11, 18);
  ScratchFolder web;
  std::unique_ptr<ServerProcess> server;
  QTimer answering;
  QMessageBox::StandardButton answer = QMessageBox::Ok;
  std::vector<std::string> boxes;
};

TEST_F(Portal, UpdatesOnlyWhatHasComeAndIsNew) {
  const auto empty = scratch.snapshot();
  use("file/pwr.csv", "404");
  update();
  EXPECT_EQ(boxes, std::vector<std::string>{
                       "The draws of Mega Millions could not be fetched. Nothing was changed."});
  EXPECT_TRUE(boxText.contains(QStringLiteral("The server does not have the draws at 127.0.0.1")))
      << boxText.toStdString();
  EXPECT_EQ(scratch.snapshot(), empty) << "one game alone has come";
  EXPECT_FALSE(widget<QPushButton>("Form1", "Command2").isHidden());

  int asked = 0;
  application.onFetchFailed = [&](const GameInfo& game, const std::string&) {
    EXPECT_EQ(game.game, Game::megaMillions);
    return ++asked < 3 ? AfterFailedFetch::tryAgain : AfterFailedFetch::leave;
  };
  update();
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(scratch.snapshot(), empty);

  use("file/pwr.csv", "file/meg.csv");
  for (const char* file : {"QZR6PWR/QZR6PWR1.Ply", "QZR6MEG/QZR6MEG1.Ply"}) {
    scratch.write(std::string("QzrNumbers/") + file, "");
  }
  update();
  EXPECT_EQ(boxes.back(), "The updates for The Tallywick Software is completed");
  EXPECT_TRUE(newestLine().starts_with(" 11-18-2026")) << newestLine();
  EXPECT_TRUE(widget<QPushButton>("Form1", "Command2").isHidden());
  const auto note = [this] { return application.noteOfUpdate(); };
  EXPECT_EQ(note(), "Next draw: Saturday, 11-21-2026");

  QPushButton& again = button("Fetch Again");
  const auto updated = scratch.snapshot();
  again.click();
  EXPECT_EQ(boxText,
            QStringLiteral("There is no new draw. Nothing was changed.\n\nPowerBall: Next draw: Saturday, "
                           "11-21-2026.\nMega Millions: Friday's draw is not published yet."));
  EXPECT_EQ(scratch.snapshot(), updated);
  put(newest + 2);
  again.click();
  EXPECT_EQ(boxes.back(), "The updates for The Tallywick Software is completed");
  EXPECT_TRUE(newestLine().starts_with(" 11-20-2026")) << newestLine();
  put(newest + 2, "02/30/2019,10 20 30 40 50 06,2\n");
  again.click();
  EXPECT_TRUE(
      boxText.contains(QStringLiteral("PowerBall: rows of the export that cannot be used: 1; the first is in "
                                      "line 112: \"02/30/2019\"")))
      << boxText.toStdString();
}

TEST_F(Portal, BringsRealDrawsAndOffersToTakeTheSamplePlaysAway) {
  scratch.write("QzrNumbers/QZR6PWR/SAMPLE.TXT", "");
  scratch.write("QzrNumbers/QZR6MEG/QZR6MEG2.Ply", records({"11-17-2026,01,02,03,04,05,06,50000000"}));
  const std::string plays = records({"11-16-2026,01,02,03,04,05,06,5000000"});
  const std::string before = records({"11-09-2026,01,02,03,04,05,06,5000000"});
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR2.Ply", plays);
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR2.Sav", before);
  const QWidget& strip = *button("Start a Real Record Book…").parentWidget();
  platform.run([] {});
  EXPECT_FALSE(strip.isHidden());
  answer = QMessageBox::Yes;
  update();
  EXPECT_TRUE(boxes.back().starts_with("The draws of PowerBall are real now, but its 1 plays"))
      << boxes.back();
  EXPECT_TRUE(strip.isHidden());
  EXPECT_EQ(scratch.read("QzrNumbers/QZR6PWR/QZR6PWR2.Ply"), "");
  EXPECT_NE(scratch.read("QzrNumbers/QZR6MEG/QZR6MEG2.Ply"), "") << "its draws were real";
  for (const std::string& text : {plays, before}) {
    EXPECT_EQ(std::ranges::count(scratch.snapshot(), text, [](const auto& file) { return file.second; }), 1)
        << "there is no dated copy";
  }
}

TEST_F(Portal, AFailureOfTheUpdateItselfEndsNothing) {
  scratch.write("QzrNumbers/QZR6MEG/QZR6MEG1.Ply", "\"11-28-2026\",\"01\"\r\n");
  scratch.write("QzrNumbers/QZR6MEG/SAMPLE.TXT", "");
  update();
  EXPECT_EQ(boxes.back(), "The plays stay as they are.") << "nobody is asked about the sample plays";
  EXPECT_EQ(boxes.at(boxes.size() - 2), "The update could not be completed.") << "the plays cannot be read";
  EXPECT_FALSE(platform.ended());
  EXPECT_FALSE(widget<QPushButton>("Form1", "Command2").isHidden());
  EXPECT_TRUE(newestLine().starts_with(" 11-18-2026")) << newestLine();
}

}  // namespace
}  // namespace tallywick::test
