// SPDX-License-Identifier: GPL-3.0-or-later
// The pieces that the windows are made of, each by itself.
#include "qt/look.h"
#include "ui/qt/dialogs/settings_dialog.h"
#include "ui/qt/parts/ball_picture.h"
#include "ui/qt/parts/chart_view.h"
#include "ui/qt/parts/choice_list.h"
#include "ui/qt/parts/handler_runner.h"
#include "ui/qt/parts/layouts.h"
#include "ui/qt/parts/line_actions.h"
#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/line_header.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/wording.h"
#include "ui/qt/windows/qt_transfer_window.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QProgressDialog>
#include <QTest>
#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

TEST(Wordings, PutCaptionsOnTheScreen) {
  const struct {
    const char* name;
    Wording wording;
    const char* caption;
    const char* shown;
  } cases[] = {
      {"an ampersand in data is no mnemonic", literally(), "A & B", "A && B"},
      {"a mnemonic is found in either case", withMnemonic('S'), "Mega Millions Play Selection",
       "Mega Million&s Play Selection"},
      {"a caption without the letter has none", withMnemonic('X'), "Draw & Go", "Draw && Go"},
      {"a doubled ampersand of a label is one", asLabel(), "Your Play && Winning", "Your Play & Winning"},
      {"a label of a control keeps it from being a mnemonic", asLabelOfControl('W'), "Play && Winning",
       "Play && &Winning"},
  };
  for (const auto& each : cases) {
    EXPECT_EQ(each.wording(each.caption).toStdString(), each.shown) << each.name;
  }
}

/// Runs what it is given, or only counts it.
class CountingRunner : public HandlerRunner {
 public:
  void run(const std::function<void()>& handler) override { handler(); }
  void attempt(const std::function<void()>& action) override {
    ++attempts;
    if (doesRun) action();
  }
  int attempts = 0;
  bool doesRun = true;
};

TEST(Sentences, HaveRoomForEveryLineBesideWhatIsTall) {
  QWidget page;
  auto* column = columnIn(&page);
  QLabel* label = sentences(&page);
  column->addWidget(label);
  column->addWidget(new QListView, 1);
  page.resize(300, 150);
  page.show();
  label->setText(QStringLiteral("words that wrap ").repeated(20));
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
  EXPECT_GE(label->height(), label->heightForWidth(label->width()));
}

TEST(Lists, CopyTheLinesThatAreSelected) {
  TextLines lines;
  for (const char* line :
       {" 11-18-2026    06 08   13", " 11-16-2026    05 19   20", " 11-14-2026    09 10   04"})
    lines.add(line);
  LineList list(lines);
  CountingRunner runner;
  addLineActions(list, runner);
  list.resize(300, 200);
  list.show();
  QCoreApplication::processEvents();
  list.setCurrentIndex(list.model()->index(0, 0));
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            QStringLiteral(" 11-16-2026    05 19   20\n 11-14-2026    09 10   04"));
}

TEST(Lists, AreSavedAsTextAndInColumns) {
  TextLines lines;
  lines.add(" 11-18-2026    06 08 30 51 55   13  *  40");
  lines.add(" 06, 4 draws before:");
  LineList list(lines);
  EXPECT_EQ(asText(list), " 11-18-2026    06 08 30 51 55   13  *  40\n 06, 4 draws before:\n");
  EXPECT_EQ(asCommaSeparated(list), "11-18-2026,06,08,30,51,55,13,*,40\r\n\"06,\",4,draws,before:\r\n");
  list.showColumns({{LineField::date, "Date"},
                    {LineField::whites, "Numbers"},
                    {LineField::extra, "PowerBall"},
                    {LineField::amount, "Amount"}},
                   Game::powerBall);
  EXPECT_EQ(asCommaSeparated(list),
            "Date,Number 1,Number 2,Number 3,Number 4,Number 5,PowerBall,Mark,Amount\r\n"
            "11-18-2026,06,08,30,51,55,13,*,40\r\n\"06, 4 draws before:\",,,,,,,,\r\n");
  TextLines texts;
  texts.add(" 11-18-2026   Winning Ticket... ");
  LineList verdicts(texts);
  verdicts.showColumns(list.columns(), Game::powerBall);
  verdicts.reload();
  EXPECT_TRUE(verdicts.header()->isHidden());
  EXPECT_EQ(asCommaSeparated(verdicts), "11-18-2026   Winning Ticket...\r\n");
  texts.add(lines[0]);
  verdicts.reload();
  EXPECT_FALSE(verdicts.header()->isHidden());
  const QString table = asTable(list, 1);
  EXPECT_TRUE(table.contains(QStringLiteral("<td align=\"left\">06&nbsp;08&nbsp;30&nbsp;51&nbsp;55</td>")))
      << table.toStdString();
  EXPECT_TRUE(table.contains(QStringLiteral("The first 1 of 2 lines.")));
}

TEST(ChoiceLists, TellWhatIsChosenByMouseAndByKeyboard) {
  TextLines lines;
  lines.add("first");
  lines.add("second");
  ChoiceList choice(lines);
  QStringList chosen;
  choice.onChosen = [&](const QString& item) { chosen += item; };
  choice.show();
  QApplication::setActiveWindow(&choice);
  choice.list().setFocus();
  QTest::keyClick(&choice.list(), Qt::Key_Down);
  EXPECT_EQ(chosen.last(), QStringLiteral("second"));
  QTest::mouseClick(choice.list().viewport(), Qt::LeftButton, {},
                    choice.list().visualRect(choice.list().model()->index(0, 0)).center());
  EXPECT_EQ(chosen.last(), QStringLiteral("first"));
}

TEST(Actions, OfListsAndChartsAreAttemptedSoThatNothingEscapesIntoTheToolkit) {
  CountingRunner runner;
  runner.doesRun = false;
  TextLines lines;
  LineList list(lines);
  addLineActions(list, runner);
  const ChartView chart(runner);
  for (QAction* action : list.actions() + chart.actions()) action->trigger();
  EXPECT_EQ(runner.attempts, 6);
}

TEST(Charts, CanBeReadAsText) {
  const std::vector<Chart::Bar> bars = {{7, "06", colors::yellow}, {0, "13", Color::rgb(153, 153, 153)}};
  EXPECT_EQ(ChartView::inWords(QStringLiteral("Tallywick Last 100 Draws"), bars).toStdString(),
            "Tallywick Last 100 Draws. 06: 7, 13: 0");
}

TEST(BallPictures, ShowThePictureOrDrawTheBall) {
  BallPicture shown(Game::megaMillions);
  shown.resize(shown.sizeHint());
  const auto middle = [&] { return shown.grab().toImage().pixelColor(shown.rect().center() / 2); };
  const QColor empty = middle();
  QPixmap green(8, 8);
  green.fill(Qt::green);
  shown.showNumber(QStringLiteral("07"), false, green);
  EXPECT_EQ(middle(), QColor(Qt::green));
  QPixmap onWhite(8, 8);
  onWhite.fill(Qt::white);
  QPainter(&onWhite).fillRect(1, 1, 6, 6, Qt::green);
  shown.setPalette(QPalette(Qt::black));
  shown.showNumber(QStringLiteral("07"), false, onWhite);
  EXPECT_EQ(middle(), QColor(Qt::green));
  EXPECT_NE(shown.grab().toImage().pixelColor(0, 0), QColor(Qt::white));
  shown.showNumber(QStringLiteral("07"), true, {});
  EXPECT_NE(middle(), QColor(Qt::green));
  EXPECT_NE(middle(), empty);
  EXPECT_EQ(shown.accessibleName(), QStringLiteral("extra ball 07"));
  EXPECT_EQ(middle(), fillOf(extraBallOf(Game::megaMillions), shown.palette()));
}

TEST(DimmedLabels, AreReadableOnADesktopThatTurnsDark) {
  const QPalette before = QApplication::palette();
  QWidget window;
  DimmedLabel label(&window);
  window.show();
  for (const QPalette& colors : {darkPalette(), highContrastPalette(), lightPalette()}) {
    QApplication::setPalette(colors);
    QApplication::processEvents();
    EXPECT_GE(theme::contrast(label.palette().color(QPalette::WindowText), colors.color(QPalette::Window)),
              theme::textContrast);
  }
  QApplication::setPalette(before);
}

TEST(SettingsDialogs, GiveBackWhatTheyWereGiven) {
  const Settings settings = {"host:2121",
                             Settings::Tls::required,
                             "https://a.example/",
                             "https://b.example/?x=1&y=2",
                             Settings::Source::server,
                             "https://c.example/",
                             "https://d.example/"};
  SettingsDialog dialog(settings, nullptr);
  EXPECT_EQ(dialog.settings(), settings);
  // A quote would end the value in the settings file.
  for (auto* edit : dialog.findChildren<QLineEdit*>()) QTest::keyClicks(edit, QStringLiteral("\""));
  EXPECT_EQ(dialog.settings(), settings);
  for (auto* edit : dialog.findChildren<QLineEdit*>()) edit->clear();
  EXPECT_EQ(dialog.settings().powerBallDraws, powerBallExport) << "an empty address is the built-in one";
}

TEST(TransferWindows, ShowTheFileInHand) {
  QtTransferWindow window;
  window.show({"QZRNUM6.Dat", 500, 1000});
  const auto shown = [] {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* dialog = qobject_cast<QProgressDialog*>(widget)) return dialog;
    }
    return static_cast<QProgressDialog*>(nullptr);
  };
  ASSERT_NE(shown(), nullptr);
  EXPECT_EQ(shown()->value(), 50);
  EXPECT_TRUE(shown()->labelText().contains(QStringLiteral("QZRNUM6.Dat")));
  window.close();
  EXPECT_EQ(shown(), nullptr);
}

}  // namespace
}  // namespace tallywick::test
