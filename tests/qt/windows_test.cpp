// SPDX-License-Identifier: GPL-3.0-or-later
// Windows, message boxes and errors: what the program does on the desktop.
#include "app/main_form.h"
#include "core/runtime_error.h"
#include "qt/desk_fixture.h"
#include "selection/hints.h"
#include "support/host.h"
#include "support/record_book.h"
#include "ui/qt/dialogs/backup_dialog.h"
#include "ui/qt/dialogs/first_start.h"
#include "ui/qt/pages/summary_print.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/program/desk_actions.h"
#include "ui/qt/program/guarded_application.h"
#include "ui/qt/windows/help_window.h"
#include "ui/qt/windows/layout_memory.h"
#include "update/ftp_servers.h"

#include <QAbstractItemView>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTableView>
#include <QTextBrowser>
#include <QToolButton>
#include <algorithm>
#include <new>

namespace tallywick::test {
namespace {

class Windows : public Desktop {};

TEST_F(Windows, ShowABoxAsItIsAndGiveItsAnswerBack) {
  const MessageBox box = {" A text,\nwith  blanks\n", " Title  ", MessageBox::Icon::question,
                          MessageBox::Buttons::yesNo};
  for (const auto answer : {QMessageBox::Yes, QMessageBox::No}) {
    answerNextBox(answer);
    EXPECT_EQ(platform.show(box),
              answer == QMessageBox::Yes ? MessageBox::Answer::yes : MessageBox::Answer::no);
    EXPECT_EQ(boxTitle, QStringLiteral(" Title  "));
    EXPECT_EQ(boxText, QStringLiteral(" A text,\nwith  blanks\n"));
    EXPECT_EQ(boxIcon, QMessageBox::Question);
  }
}

TEST_F(Windows, ShowPlaysWithWhatTheyMatchedOnScreenAndOnPaper) {
  writeRecordBook(scratch);
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR2.Ply",
                records({"12-28-2026,01,02,03,50,51,01,3000020", "12-27-2026,50,51,52,53,54,20,0000050"}));
  platform.desk.showsMadeUpDraws = [] { return true; };
  FormWindow& main = open("Form1");
  auto& wins = widget<LineList>("Form1", "List2");
  const LineHighlights found = wins.lineModel()->highlightsOf(" 12-28-2026    01 02 03 50 51   01");
  EXPECT_EQ(found.matched, "3 + PowerBall");
  EXPECT_EQ(found.whites, (std::vector<std::string>{"01", "02", "03"}));
  EXPECT_TRUE(found.wins && found.extra);
  const QString page = summaryPage(static_cast<MainForm&>(main.form()), main);
  EXPECT_TRUE(page.contains(QStringLiteral("<h3>Your Play &amp; Winning Lotto Ticket(s):</h3>")));
  EXPECT_TRUE(page.contains(QStringLiteral("<td align=\"left\">3&nbsp;+&nbsp;PowerBall</td>")))
      << page.toStdString();
  EXPECT_TRUE(page.contains(QStringLiteral("The first 15 of 119 lines.")));
  EXPECT_TRUE(page.contains(QStringLiteral("<p><b>Sample draws.</b>")));
}

TEST_F(Windows, SayWhichFileIsDamagedUntilItIsMended) {
  writeRecordBook(scratch);
  FormWindow& main = open("Form1");
  const auto comeBackTo = [&main](QAbstractButton* button) {
    QEvent activation(QEvent::WindowActivate);
    QApplication::sendEvent(&main, &activation);
    return button->isVisible();
  };
  const auto buttons = main.findChildren<QPushButton*>();
  QPushButton* const help = *std::ranges::find(buttons, QStringLiteral("What to Do…"), &QPushButton::text);
  EXPECT_FALSE(comeBackTo(help));
  scratch.write("QzrNumbers/QZR6MEG/QZR6MEG1.Ply", "12-29-2026,01\r\n");
  EXPECT_TRUE(comeBackTo(help)) << "a game that is not on show";
  answerNextBox(QMessageBox::Ok);
  help->click();
  EXPECT_TRUE(boxText.contains(QStringLiteral("(QZR6MEG1.Ply) is damaged in line 1")));
  scratch.write("QzrNumbers/QZR6MEG/QZR6MEG1.Ply", "");
  EXPECT_FALSE(comeBackTo(help));
}

TEST_F(Windows, SortTheNumberTableByAColumn) {
  writeRecordBook(scratch);
  open("Form1");
  const auto lists = window("Form1").findChildren<LineList*>();
  LineList& numbers = **std::ranges::find(lists, QStringLiteral("White Balls"), &QWidget::accessibleName);
  for (QWidget* shown = &numbers; shown != nullptr; shown = shown->parentWidget()) {
    QWidget* stack = shown->parentWidget();
    auto* tabs = qobject_cast<QTabWidget*>(stack != nullptr ? stack->parentWidget() : nullptr);
    if (tabs != nullptr) tabs->setCurrentWidget(shown);
  }
  ASSERT_EQ(numbers.lineModel()->lines().size(), 69U);
  EXPECT_TRUE(numbers.lineModel()->lines()[0].starts_with(" 01"));
  numbers.header()->sectionClicked(5);
  EXPECT_TRUE(numbers.lineModel()->lines()[0].ends_with("never")) << numbers.lineModel()->lines()[0];
}

TEST_F(Windows, ARuntimeErrorEndsTheProgramWithItsBox) {
  open("Form1");
  answerNextBox([this](const QMessageBox& box) {
    helpPage = box.informativeText();
    for (QAbstractButton* button : box.buttons()) {
      if (box.standardButton(button) == QMessageBox::NoButton) button->click();
    }
    return box.button(QMessageBox::Ok);
  });
  platform.run([] { throw RuntimeError(ErrorNumber::fileNotFound, "somewhere"); });
  EXPECT_EQ(boxText, QStringLiteral("Run-time error '53':\n\nFile not found"));
  EXPECT_TRUE(helpPage.startsWith(QStringLiteral("Where: somewhere\n\nNo play was lost")));
  EXPECT_TRUE(helpPage.contains(QStringLiteral("After OK the program ends.")));
  EXPECT_EQ(QGuiApplication::clipboard()->text(), boxText + QStringLiteral("\n\n") + helpPage);
  EXPECT_TRUE(platform.ended());
  EXPECT_EQ(platform.exitCode(), 1);
}

TEST_F(Windows, WhatTheyAddToTheModelMayFailWithoutEndingTheProgram) {
  platform.desk.help = [](const QString&) { throw std::bad_alloc(); };
  platform.desk.editSettings = [] { throw RuntimeError(ErrorNumber::permissionDenied, "tallywick.ini"); };
  QApplication::setActiveWindow(&open("Form1"));
  answerNextBox(QMessageBox::Ok);
  QTest::keyClick(&window("Form1"), Qt::Key_F1);
  EXPECT_EQ(boxText, QStringLiteral("std::bad_alloc"));
  answerNextBox(QMessageBox::Ok);
  for (auto* button : window("Form1").findChildren<QToolButton*>()) {
    if (button->text() == u"Settings…") button->click();
  }
  EXPECT_EQ(boxText, QStringLiteral("Permission denied: tallywick.ini"));
  EXPECT_FALSE(platform.ended());
}

/// A widget whose painting or mouse handling fails.
class FailingWidget : public QWidget {
 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::User) throw RuntimeError(ErrorNumber::deviceIoError, "an event");
    return QWidget::event(event);
  }
};

TEST_F(Windows, AnErrorInAnEventEndsTheProgramRatherThanAbortIt) {
  auto& qt = static_cast<GuardedApplication&>(*QCoreApplication::instance());
  std::vector<std::string> escaped;
  qt.onEscaped = [&escaped](const RuntimeError& error) { escaped.emplace_back(error.what()); };
  FailingWidget widget;
  for (int i = 0; i < 2; ++i) QCoreApplication::postEvent(&widget, new QEvent(QEvent::User));
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  EXPECT_EQ(escaped, std::vector<std::string>{"Device I/O error: an event"});
  qt.onEscaped = nullptr;
}

QWidget* helpWindow() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->windowTitle() == u"Tallywick Help") return window;
  }
  return nullptr;
}

TEST_F(Windows, HelpIsThereWhereTheDataFolderCannotBeRead) {
  if (!hasPosixFiles) GTEST_SKIP() << "needs a link to itself";
  const std::filesystem::path loop = scratch.root() / "loop";
  std::filesystem::create_symlink(loop, loop);
  openHelp(DataFolder(loop), QStringLiteral("index.html"));
  ASSERT_NE(helpWindow(), nullptr);
  helpWindow()->close();
}

TEST_F(Windows, EveryPageOfTheManualFitsInLargeText) {
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(24);
  QApplication::setFont(large);
  for (const QString& page : QDir(manualFolder()).entryList({QStringLiteral("*.html")})) {
    HelpWindow::showPage(page);
    QCoreApplication::processEvents();
    const auto* text = helpWindow()->findChild<QTextBrowser*>();
    EXPECT_EQ(text->horizontalScrollBar()->maximum(), 0) << page.toStdString();
  }
  helpWindow()->close();
  QApplication::setFont(usual);
}

TEST_F(Windows, SettingsThatCannotBeUnderstoodAreNotOverwritten) {
  scratch.write("tallywick.ini", "server=host\ntls=requird\n");
  const auto refusal = QString::fromStdString((scratch.root() / "tallywick.ini").string()) +
                       QStringLiteral(", line 2: tls is \"requird\"");
  answerNextBox(QMessageBox::Ok);
  const Settings none = settingsAtStart(scratch.folder(), platform);
  EXPECT_TRUE(boxText.startsWith(refusal)) << boxText.toStdString();
  EXPECT_EQ(none.server, "");
  EXPECT_EQ(none.source, Settings::Source::server);
  answerNextBox(QMessageBox::Ok);
  platform.attempt([this] { editSettings(application, platform); });
  EXPECT_TRUE(boxText.startsWith(refusal)) << boxText.toStdString();
  EXPECT_EQ(scratch.read("tallywick.ini"), "server=host\ntls=requird\n");
}

TEST_F(Windows, AnUpdateWithoutAServerIsNotStarted) {
  platform.desk.press = [this](Control& control) { press(application, platform, control); };
  Settings settings = application.settings();
  settings.source = Settings::Source::server;
  application.setSettings(settings);
  open("Form1");
  answerNextBox(QMessageBox::Ok);
  widget<QPushButton>("Form1", "Command2").click();
  EXPECT_TRUE(boxText.startsWith(QStringLiteral("No update server is set.")));
  EXPECT_FALSE(platform.ended());
  auto& selection = static_cast<SelectionForm&>(open("Form3").form());
  const std::string& name = selection.button(1).name();
  EXPECT_EQ(name, "Command2") << "the name of the update button, in another window";
  widget<QAbstractButton>("Form3", name.c_str()).click();
  EXPECT_NE(markOf(selection.button(1)), Mark::none);
}

TEST_F(Windows, CloseBeforeTheFormsTheyShow) {
  const Binding* binding = nullptr;
  {
    Application other({scratch.folder(), {}, clock, random, platform, {}});
    platform.run([&other] { other.showMainWindow(); });
    binding = &platform.windowOf(*other.find("Form1"))->binding();
    EXPECT_FALSE(binding->isReleased());
  }
  // The window itself goes with the next turn of the event loop.
  EXPECT_TRUE(binding->isReleased());
}

TEST_F(Windows, MakeAPageWhenItIsFirstShownOrBeforeTheFirstPress) {
  platform.run([this] { application.showMainWindow(); });
  FormWindow& main = window("Form1");
  EXPECT_EQ(main.findChild<LineList*>(QStringLiteral("List8")), nullptr);
  widget<QTabWidget>("Form1", "SSTab1").setCurrentIndex(1);
  EXPECT_TRUE(widget<LineList>("Form1", "List8").isVisible());
  EXPECT_EQ(main.findChild<LineList*>(QStringLiteral("List14")), nullptr);
  widget<QPushButton>("Form1", "Command8").click();
  EXPECT_TRUE(widget<LineList>("Form1", "List14").isVisible());
  EXPECT_NE(main.findChild<QWidget*>(QStringLiteral("Draw1")), nullptr);
  const QWidget* last = main.previousInFocusChain();
  while ((last->focusPolicy() & Qt::TabFocus) == 0) last = last->previousInFocusChain();
  EXPECT_EQ(last->parentWidget(), widget<QWidget>("Form1", "Frame4").parentWidget())
      << "the corner of the strip comes behind every page";
}

TEST_F(Windows, PaintInTheMiddleOfAHandlerButTakeNoInput) {
  FormWindow& main = open("Form1");
  auto* next = main.findChild<QPushButton*>(QStringLiteral("Command8"));
  const auto& tabs = static_cast<TabStrip&>(*application.find("Form1")->find("SSTab1"));
  platform.run([&] {
    next->click();
    main.close();
    platform.refresh();
    EXPECT_EQ(tabs.tab(), 0);
  });
  ASSERT_NE(application.find("Form1"), nullptr);
  next->click();
  EXPECT_EQ(tabs.tab(), 1);
}

TEST_F(Windows, OfTheModelAndOfTheScreenAgree) {
  open("Form1");
  const FormWindow* first = &open("Form3");
  open("Form5");
  EXPECT_EQ(application.windows().size(), 3U);
  EXPECT_NE(&open("Form3"), first);
  EXPECT_EQ(application.windows().size(), 3U);
  window("Form5").close();
  EXPECT_EQ(application.find("Form5"), nullptr);
  open("frmAbout");
  widget<QPushButton>("frmAbout", "cmdOK").click();
  EXPECT_EQ(application.find("frmAbout"), nullptr);
  window("Form1").close();
  EXPECT_TRUE(application.windows().empty());
  EXPECT_TRUE(platform.ended());
  EXPECT_EQ(platform.exitCode(), 0);
}

TEST_F(Windows, DoneAsksWhereTheFileIsNotWhatTheWindowShows) {
  open("Form3");
  const std::string other = records({"11-23-2026,01,02,03,04,05,06,5000000"});
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR7.Ply", other);
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
    answerNextBox(answer);
    widget<QPushButton>("Form3", "Command5").click();
    EXPECT_TRUE(boxText.contains(QStringLiteral("is not what this window shows")));
    EXPECT_EQ(scratch.read("QzrNumbers/QZR6PWR/QZR6PWR1.Ply"), answer == QMessageBox::Yes ? other : "");
  }
}

TEST_F(Windows, DoneAsksBeforeEarlierPlaysGo) {
  writeRecordBook(scratch);
  const std::string file = "QzrNumbers/QZR6PWR/QZR6PWR1.Ply";
  const std::string earlier =
      records({"11-23-2026,01,02,03,04,05,06,5000000", "12-30-2026,01,02,03,04,05,06,5000000"});
  const std::string selected = records({"11-21-2026,05,11,23,42,60,07,1110101"});
  scratch.write(file, earlier);
  open("Form3");
  auto& form = static_cast<SelectionForm&>(*application.find("Form3"));
  for (const int number : {5, 11, 23, 42, 60, 7, 7}) click(form.button(number));
  widget<QPushButton>("Form3", "Command59").click();
  const auto done = [&](const QString& answer) {
    answerNextBox(answer);
    widget<QPushButton>("Form3", "Command5").click();
    EXPECT_TRUE(
        boxText.contains(QStringLiteral("one play that waits for its draw, one play that is drawn already")))
        << boxText.toStdString();
    return scratch.read(file);
  };
  EXPECT_EQ(done(QStringLiteral("Cancel")), earlier);
  EXPECT_EQ(done(QStringLiteral("Keep Both")), selected + earlier);
}

TEST_F(Windows, MyPlaysAreRemovedUndoneMovedAndKept) {
  writeRecordBook(scratch);
  const std::string committed = "QzrNumbers/QZR6PWR/QZR6PWR1.Ply";
  const std::string waiting = scratch.read(committed);
  const std::string drawn = records({"12-26-2026,01,02,03,50,51,20,3000020"});
  scratch.write(committed, drawn + waiting);
  FormWindow& main = open("Form1");
  main.findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(2);
  auto& winnings = widget<QTabWidget>("Form1", "SSTab3");
  winnings.setCurrentIndex(2);
  EXPECT_EQ(static_cast<MainForm&>(main.form()).bar.SSTab3.tab(), 0) << "the tab is the window's own";
  auto& table = named<QTableView>("Form1", QStringLiteral("My plays"));
  const auto press = [&](int row, const char* button) {
    table.selectRow(row);
    for (auto* each : main.findChildren<QPushButton*>()) {
      if (each->text().remove(u'&') == QLatin1String(button)) each->click();
    }
    return scratch.read(committed);
  };
  ASSERT_EQ(table.model()->rowCount(), 4);
  table.selectRow(0);
  for (QAction* action : table.actions()) {
    if (action->text() == QStringLiteral("&Copy")) action->trigger();
  }
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            QStringLiteral("Wed 12-30-2026\t01 02 03 50 51\t20\twaiting\t\t\t\n"));
  EXPECT_EQ(press(1, "Remove"), drawn + waiting) << "a drawn play is not removed";
  EXPECT_EQ(press(0, "Remove"), drawn);
  EXPECT_EQ(press(0, "Undo"), drawn + waiting);
  EXPECT_EQ(press(3, "Move to Played"), waiting);
  EXPECT_EQ(itemsOf(static_cast<MainForm&>(main.form()).winnings.List14).size(), 3U);

  const auto explains = [&](const QString& start) {
    return std::ranges::any_of(winnings.findChildren<QLabel*>(),
                               [&](const QLabel* label) { return label->text().startsWith(start); });
  };
  widget<QPushButton>("Form1", "Command1").click();
  EXPECT_TRUE(explains(QStringLiteral("No PowerBall play was moved")));

  winnings.setCurrentIndex(1);
  widget<QPushButton>("Form1", "Command47").click();
  EXPECT_TRUE(explains(QStringLiteral("Nothing was checked")));
  winnings.setCurrentIndex(3);
  named<QLineEdit>("Form1", QStringLiteral("Numbers")).setText(QStringLiteral("1 2 3 4 5"));
  named<QLineEdit>("Form1", QStringLiteral("PowerBall")).setText(QStringLiteral("6"));
  auto& date = named<QLineEdit>("Form1", QStringLiteral("Date of the draw"));
  EXPECT_EQ(date.text(), QStringLiteral("12-28-2026")) << "the newest draw's";
  date.setText(QStringLiteral("13-02-2027"));
  press(0, "Judge");
  EXPECT_TRUE(explains(QStringLiteral("⚠ This is no day")));
  date.setText(QStringLiteral("01022027"));
  press(0, "Judge");
  EXPECT_EQ(press(0, "Keep It"), waiting + records({"01-02-2027,01,02,03,04,05,06,5000000"}));
  winnings.setCurrentIndex(1);
  EXPECT_FALSE(explains(QStringLiteral("Nothing was checked"))) << "the plays have changed since";
  winnings.setCurrentIndex(2);
  EXPECT_EQ(press(0, "Undo"), waiting);
  EXPECT_EQ(press(0, "Undo"), drawn + waiting) << "the change before that";
  scratch.write(committed, "");
  QApplication::setActiveWindow(&main);
  answerNextBox(QMessageBox::Ok);
  press(0, "Remove");
  EXPECT_TRUE(boxText.startsWith(QStringLiteral("The play files have changed"))) << boxText.toStdString();
}

TEST_F(Windows, ASelectionTakesANextPlayAwayAndBringsItBack) {
  writeRecordBook(scratch);
  const std::string committed = "QzrNumbers/QZR6PWR/QZR6PWR1.Ply";
  const std::string waiting = scratch.read(committed);
  platform.desk.playsSaved = [this](const GameInfo& game) { showSavedPlays(application, game); };
  open("Form1");
  FormWindow& selection = open("Form3");
  const auto& next = static_cast<SelectionForm&>(selection.form()).Combo8.items();
  const auto press = [this](const char* text) {
    auto& list = *window("Form3").findChild<QWidget*>(QStringLiteral("Combo8"))->findChild<LineList*>();
    list.setCurrentIndex(list.model()->index(0, 0));
    for (auto* each : window("Form3").findChildren<QAbstractButton*>()) {
      if (each->text() == QLatin1String(text)) each->click();
    }
  };
  press("R&emove");
  EXPECT_EQ(scratch.read(committed), "");
  EXPECT_TRUE(next.empty());
  EXPECT_TRUE(static_cast<MainForm&>(*application.find("Form1")).winnings.List17.items().empty());
  press("Bring Play Bac&k");
  EXPECT_EQ(scratch.read(committed), waiting);
  EXPECT_EQ(next.size(), 1U);
  scratch.write(committed, records({"12-28-2026,01,02,03,50,51,20,3000020"}));
  QApplication::setActiveWindow(&open("Form3"));
  answerNextBox(QMessageBox::Ok);
  press("R&emove");
  EXPECT_TRUE(boxText.startsWith(QStringLiteral("This play is drawn already"))) << boxText.toStdString();
}

TEST_F(Windows, DoublePlayIsAskedForOnceAndThenHasAButton) {
  writeRecordBook(scratch);
  platform.desk.showDoublePlay = [this](bool isShown) {
    platform.answerDoublePlay(isShown ? MessageBox::Answer::yes : MessageBox::Answer::no);
    click(*application.find("Form1")->find("Command7"));
  };
  FormWindow& main = open("Form1");
  const auto& frames = static_cast<MainForm&>(main.form()).frames;
  answerNextBox(QMessageBox::No);
  widget<QPushButton>("Form1", "Command7").click();
  EXPECT_TRUE(boxText.startsWith(QStringLiteral("Display PowerBall Double Play")));
  widget<QPushButton>("Form1", "Command7").click();
  EXPECT_TRUE(frames.Frame4.visible());
  for (const char* text : {"Show Double Play", "Back to PowerBall"}) {
    const QList<QToolButton*> buttons = main.findChildren<QToolButton*>();
    (*std::ranges::find(buttons, QLatin1String(text), &QToolButton::text))->click();
    EXPECT_EQ(frames.Frame6.visible(), QLatin1String(text) == u"Show Double Play");
  }
  widget<QPushButton>("Form1", "Command4").click();
  platform.desk.showDoublePlay(true);
  const auto& selection = widget<QPushButton>("Form1", "Command48");
  EXPECT_EQ(selection.text().remove(u'&'), QStringLiteral("Mega Millions Play Selection"));
  EXPECT_EQ(selection.toolTip(), QStringLiteral("Opens the play selection of PowerBall, the game on show"));
  widget<QPushButton>("Form1", "Command4").click();
  EXPECT_EQ(selection.toolTip(), selection.text().remove(u'&'));
}

TEST_F(Windows, SayWhereChartAndPicturesAreOlderThanTheDraws) {
  writeRecordBook(scratch);
  FormWindow& main = open("Form1");
  const auto says = [&main](const char* text) {
    return std::ranges::any_of(main.findChildren<QLabel*>(), [text](const QLabel* label) {
      return !label->isHidden() && label->text().contains(QLatin1String(text));
    });
  };
  auto& pages = static_cast<MainForm&>(main.form());
  platform.run([&] {
    for (const char* name : {"Command3", "Command52"}) click(*pages.find(name));
  });
  platform.run([&] { scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", dailyDraws(121)); });
  EXPECT_TRUE(says("press its button for a new one"));
  EXPECT_TRUE(says("press the button for the newest"));
  platform.run([&] { click(pages.draws.Command52); });
  EXPECT_FALSE(says("press its button for a new one"));
  EXPECT_FALSE(says("Mega Millions has no chart: here PowerBall draws are counted."));
  platform.run([&] { click(pages.bar.Command4); });
  EXPECT_TRUE(says("Mega Millions has no chart: here PowerBall draws are counted."));
}

TEST_F(Windows, ShowTheGameAtAGlanceAndLeadToItsPages) {
  writeRecordBook(scratch);
  platform.desk.clock = &clock;
  FormWindow& main = open("Form1");
  const auto press = [this](const char* name) {
    QTest::keyClick(&named<QAbstractButton>("Form1", QString::fromLatin1(name)), Qt::Key_Return);
  };
  const auto& pages = *main.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
  const auto& plays = *named<QTableView>("Form1", QStringLiteral("My plays")).model();
  press("Drawn plays: 2, of which 1 won");
  EXPECT_EQ(pages.currentIndex(), 2);
  EXPECT_TRUE(named<QTableView>("Form1", QStringLiteral("My plays")).isVisible());
  EXPECT_EQ(plays.index(0, 0).data().toString(), QStringLiteral("Mon 12-28-2026"));
  EXPECT_EQ(plays.rowCount(), 1);
  press("Newest PowerBall draw: Mon 12-28-2026 01 02 03 04 05 and 01");
  EXPECT_EQ(pages.currentIndex(), 0);
  press("Next draw: Wed 12-30-2026");
  EXPECT_EQ(plays.index(0, 0).data().toString(), QStringLiteral("Wed 12-30-2026"));
  platform.run([this] { scratch.write("QzrNumbers/QZR6PWR/QZR6PWR1.Ply", ""); });
  press("Waiting for it: no plays");
  EXPECT_EQ(plays.rowCount(), 0);
  platform.run([this] { std::filesystem::remove(scratch.root() / "QzrNumbers/QZR6PWR/QZRNUM6.Dat"); });
  const auto& newest = named<QAbstractButton>("Form1", QStringLiteral("Newest PowerBall draw: not known"));
  EXPECT_TRUE(newest.toolTip().contains(QStringLiteral("File not found"))) << newest.toolTip().toStdString();
  platform.run([this] { click(*application.find("Form1")->find("Command4")); });
  press("Newest Mega Millions draw: Mon 12-28-2026 01 02 03 04 05 and 01");
}

TEST_F(Windows, SelectedPlaysAreNotDroppedWithoutAQuestion) {
  platform.desk.playsSaved = [this](const GameInfo& game) { showSavedPlays(application, game); };
  scratch.write("QzrNumbers/QZR6PWR/QZR6PWR9.Sel", "\"01  03  34  53  63  11\"\r\n");
  open("Form1");
  FormWindow& slip = open("Form3");
  auto& form = static_cast<SelectionForm&>(*application.find("Form3"));
  QApplication::setActiveWindow(&slip);
  auto& saved = widget<QAbstractItemView>("Form3", "List1");
  saved.setFocus();
  saved.setCurrentIndex(saved.model()->index(0, 0));
  QTest::keyClick(&saved, Qt::Key_Return);
  EXPECT_EQ(marksHint(form).marks, "01 03 34 53 63   PowerBall 11");
  widget<QPushButton>("Form3", "Command84").click();
  QTest::keyClick(&slip, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(marksHint(form).marks, "01 03 34 53 63   PowerBall 11");
  widget<QPushButton>("Form3", "Command59").click();
  const std::function<void()> leave[] = {
      [&] { QTest::keyClick(&slip, Qt::Key_Escape); },
      [&] { window("Form1").close(); },
      [&] { widget<QPushButton>("Form1", "Command48").click(); },
      [&] { window("Form1").findChild<QAction*>(QStringLiteral("mnuExit"))->trigger(); },
  };
  for (const auto& way : leave) {
    boxText.clear();
    answerNextBox(QMessageBox::Cancel);
    way();
    EXPECT_EQ(boxText, QStringLiteral("One selected play is not saved yet."));
    ASSERT_EQ(application.find("Form3"), &form);
  }
  answerNextBox(QStringLiteral("Save"));
  QTest::keyClick(&slip, Qt::Key_Escape);
  EXPECT_EQ(static_cast<ListBox&>(*application.find("Form1")->find("List17")).items().size(), 1U);
  EXPECT_EQ(application.find("Form3"), nullptr);
}

TEST_F(Windows, ABackupIsWrittenAndAnotherChosenToRestore) {
  const std::filesystem::path holder = scratch.root() / "holder";
  const std::filesystem::path book = holder / "book";
  std::filesystem::create_directories(book);
  std::filesystem::rename(scratch.root() / "QzrNumbers", book / "QzrNumbers");
  std::ofstream(book / "QzrNumbers/x") << "x";
  BackupDialog dialog(book, platform, nullptr);
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(holder), {}), 2) << "the book and its zip";
  QApplication::setActiveWindow(&dialog);
  auto& target = *dialog.findChildren<QLineEdit*>().front();
  const QString second = target.text();
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(holder), {}), 3) << "another name is proposed";
  target.setText(second);
  answerNextBox(QMessageBox::Ok);
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_TRUE(boxText.contains(QStringLiteral("it exists already"))) << boxText.toStdString();

  answerNextBox(QStringLiteral("Restore"));
  dialog.askToRestore(QStringLiteral("/a.zip"));
  EXPECT_EQ(dialog.restoreFrom(), "/a.zip");
}

TEST_F(Windows, EverySearchTakesATypedNumber) {
  writeRecordBook(scratch);
  open("Form1");
  platform.answerAlone();
  widget<QAction>("Form1", "mnuMegaMillions").trigger();
  for (const char* name : {"Combo4", "Combo2", "Combo3", "Combo8"}) {
    auto& picker = widget<QComboBox>("Form1", name);
    picker.lineEdit()->selectAll();
    QTest::keyClicks(picker.lineEdit(), QStringLiteral("23"));
    QTest::keyClick(picker.lineEdit(), Qt::Key_Return);
    EXPECT_FALSE(platform.ended()) << name;
  }
  EXPECT_EQ(static_cast<Button&>(*application.find("Form1")->find("Command23")).caption(), "23");
  click(*application.find("Form1")->find("Command46"));
  window("Form1").binding().showChanges();
  const auto& counted = static_cast<const ComboBox&>(*application.find("Form1")->find("Combo9")).items();
  QStringList listed;
  for (const auto* list : window("Form1").findChildren<LineList*>()) {
    if (list->accessibleName() == u"Draws that were found" && !list->parentWidget()->isHidden())
      listed += QString::number(list->model()->rowCount());
  }
  EXPECT_EQ(listed, QStringList(QString::number(counted.size())));
}

TEST_F(Windows, AKeyOnTheSplashEndsTheProgram) {
  QTest::keyClick(&open("frmSplash"), Qt::Key_A);
  EXPECT_TRUE(application.windows().empty());
  EXPECT_TRUE(platform.ended());
}

TEST_F(Windows, ComeBackInTheirSizeButNeverLargerThanTheScreen) {
  const QSize screen = QGuiApplication::primaryScreen()->availableGeometry().size();
  QMainWindow shown;
  shown.setObjectName(QStringLiteral("sized"));
  shown.resize(300, 200);
  saveLayout(shown);
  restoreLayout(shown, {100, 100});
  EXPECT_EQ(shown.size(), QSize(300, 200));
  shown.resize(2 * screen);
  saveLayout(shown);
  restoreLayout(shown, {100, 100});
  EXPECT_LE(shown.width(), screen.width());
  EXPECT_LE(shown.height(), screen.height());
}

TEST_F(Windows, ASecondStartOnTheFolderIsTold) {
  const auto first = holdDataFolder(scratch.root());
  ASSERT_TRUE(first.has_value());
  answerNextBox(QMessageBox::Ok);
  EXPECT_FALSE(holdDataFolder(scratch.root()).has_value());
  EXPECT_TRUE(boxText.contains(QStringLiteral("is already open")));
}

TEST_F(Windows, TheCompiledHelpOpensWhereThereIsAViewer) {
  if (!hasPosixFiles) GTEST_SKIP() << "the viewer of this test is a shell script";
  namespace fs = std::filesystem;
  const fs::path viewer = scratch.root() / "kchmviewer";
  const fs::path seen = scratch.root() / "seen";
  std::ofstream(viewer) << "#!/bin/sh\necho \"$1\" >" << seen << ".new; mv " << seen << ".new " << seen
                        << "\n";
  fs::permissions(viewer, fs::perms::owner_all);
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", QByteArray::fromStdString(scratch.root().string()) + ':' + path);
  scratch.write("QZRHELP.CHM", "");
  openHelp(scratch.folder(), QStringLiteral("index.html"));
  for (int wait = 0; wait < 100 && !fs::exists(seen); ++wait) QTest::qWait(20);
  EXPECT_EQ(scratch.read("seen"), (scratch.root() / "QZRHELP.CHM").string() + "\n");
  qputenv("PATH", path);
}

TEST_F(Windows, AFirstStartOffersTheLastFolderOrToMakeOne) {
  const std::filesystem::path missing = scratch.root() / "nowhere";
  std::vector<QString> presses;
  QTimer pressing;
  pressing.callOnTimeout([&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || presses.empty()) return;
    if (auto* files = qobject_cast<QFileDialog*>(dialog)) return files->reject();
    for (QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) {
      if (button->text() != presses.front()) continue;
      presses.erase(presses.begin());
      return button->click();
    }
  });
  pressing.start(1);
  // Opened once, the folder is the last one.
  EXPECT_EQ(findDataFolder(scratch.root().string(), Offer::yes), scratch.root());
  presses = {QStringLiteral("Open the &last one")};
  EXPECT_EQ(findDataFolder(missing.string(), Offer::yes), scratch.root());
  presses = {QStringLiteral("…from &files that I saved"), QStringLiteral("Open &another…"),
             QStringLiteral("&Quit")};
  EXPECT_EQ(findDataFolder(missing.string(), Offer::yes), std::nullopt) << "no file and no folder is chosen";
  EXPECT_TRUE(presses.empty()) << "the choices do not come back";
  EXPECT_EQ(findDataFolder(missing.string(), Offer::no), std::nullopt);
  EXPECT_FALSE(std::filesystem::exists(missing));

  putText(missing / "tallywick.ini",
          "powerball-draws=\"http://127.0.0.1:1/\"\nmega-millions-draws=\"http://127.0.0.1:1/\"\n");
  presses = {QStringLiteral("Start my record book with the &real draws"), QStringLiteral("&Try Again"),
             QStringLiteral("&Back"), QStringLiteral("Look around with &sample draws")};
  EXPECT_EQ(findDataFolder(missing.string(), Offer::yes), missing);
  EXPECT_TRUE(DataFolder(missing).exists(R"(QzrNumbers\QZR6MEG\SAMPLE.TXT)"));
}

}  // namespace
}  // namespace tallywick::test
