// SPDX-License-Identifier: GPL-3.0-or-later
// The windows by keyboard alone.
#include "app/main_form.h"
#include "core/plays.h"
#include "qt/desk_fixture.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/windows/text_size.h"

#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <algorithm>
#include <utility>

namespace tallywick::test {
namespace {

class Keyboard : public Desktop {
 protected:
  void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  SelectionForm& selection() { return static_cast<SelectionForm&>(*application.find("Form3")); }
};

TEST_F(Keyboard, EntriesWithoutAnAddressAreGrey) {
  platform.desk.isSet = [](const Control& control) { return control.name() != "mnuGameInfo"; };
  FormWindow& main = open("Form1");
  EXPECT_FALSE(main.findChild<QAction*>(QStringLiteral("mnuGameInfo"))->isEnabled());
  EXPECT_TRUE(main.findChild<QAction*>(QStringLiteral("mnuQZRHelp"))->isEnabled());
}

TEST_F(Keyboard, SavesThePagesListWhereverTheFocusIs) {
  FormWindow& main = open("Form1");
  QString title;
  for (const char* name : {"Command7", "List4"}) {
    QApplication::setActiveWindow(&main);
    widget<QWidget>("Form1", name).setFocus();
    QTimer::singleShot(0, [&title] {
      title = QApplication::activeModalWidget()->windowTitle();
      QApplication::activeModalWidget()->close();
    });
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(std::exchange(title, {}), QStringLiteral("Save the Lines")) << name;
  }
}

TEST_F(Keyboard, SavesTheTopmostListOfAPage) {
  FormWindow& main = open("Form1");
  QMenu& file = *main.findChild<QAction*>(QStringLiteral("mnuFile"))->menu();
  auto& winnings = widget<QTabWidget>("Form1", "SSTab3");
  widget<QTabWidget>("Form1", "SSTab1").setCurrentIndex(2);
  int page = 0;
  for (const char* list : {"Plays Already Drawn", "Winning Tickets", "My plays"}) {
    winnings.setCurrentIndex(page++);
    Q_EMIT file.aboutToShow();
    const auto isSave = [](const QAction* each) { return each->text().contains(QStringLiteral("Ctrl+S")); };
    const QList<QAction*> entries = file.actions();
    EXPECT_EQ((*std::ranges::find_if(entries, isSave))->toolTip(), QString::fromLatin1(list));
  }
}

TEST_F(Keyboard, MakesAPlayWithDigitsSpaceAndMnemonics) {
  FormWindow& window = open("Form3");
  QApplication::setActiveWindow(&window);
  for (const char* number : {"05", "12", "33", "47", "69"}) {
    type(QString::fromLatin1(number));
    press(Qt::Key_Space);
  }
  type(QStringLiteral("26"));
  press(Qt::Key_Space);
  press(Qt::Key_Space);
  EXPECT_EQ(widget<BallButton>("Form3", selection().button(26).name().c_str()).mark(), BallMark::extra);
  press(Qt::Key_S, Qt::AltModifier);
  EXPECT_EQ(scratch.read(R"(QzrNumbers\QZR6PWR\QZR6PWR7.Ply)").substr(0, 42),
            "\"11-21-2026\",\"05\",\"12\",\"33\",\"47\",\"69\",\"26\"");
  ASSERT_EQ(selection().Combo1.items().size(), 1U);
  // Keys that follow each other at once are all taken.
  for (const Qt::Key key : {Qt::Key_W, Qt::Key_P, Qt::Key_P, Qt::Key_D}) press(key, Qt::AltModifier);
  const PlayFile committed(scratch.folder(), R"(QzrNumbers\QZR6PWR\QZR6PWR1.Ply)");
  EXPECT_EQ(committed.plays().size(), 3U);
}

TEST_F(Keyboard, GoesOverTheSlipAsItsRowsStand) {
  FormWindow& window = open("Form3");
  QApplication::setActiveWindow(&window);
  const auto focused = [] { return QApplication::focusWidget()->accessibleName().left(2).toStdString(); };
  type(QStringLiteral("7"));
  EXPECT_EQ(focused(), "07");
  press(Qt::Key_Down);
  EXPECT_EQ(focused(), "17");
  press(Qt::Key_Right);
  EXPECT_EQ(focused(), "18");
  // 7 and 9 make no number of this slip; the 9 begins anew.
  type(QStringLiteral("79"));
  EXPECT_EQ(focused(), "09");
  type(QStringLiteral("0"));
  type(QStringLiteral("3"));
  EXPECT_EQ(focused(), "03");
}

TEST_F(Keyboard, ChangesTheTextSizeOfAllWindowsUntilTheNextChange) {
  const QFont usual = QApplication::font();
  FormWindow& main = open("Form1");
  const int height = widget<QComboBox>("Form1", "Combo4").fontMetrics().height();
  {
    const TextSize size;
    for (int i = 0; i < 9; ++i) QTest::keyClick(&main, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(&main, Qt::Key_Minus, Qt::ControlModifier);
  }
  QApplication::setFont(usual);
  const TextSize size;
  EXPECT_EQ(QApplication::font().pointSizeF(), usual.pointSizeF() + 8);
  for (const QWidget* each : main.findChildren<QWidget*>())
    EXPECT_EQ(each->font().pointSizeF(), usual.pointSizeF() + 8) << each->metaObject()->className();
  EXPECT_GT(widget<QComboBox>("Form1", "Combo4").fontMetrics().height(), height);
  QTest::keyClick(&main, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(QApplication::font().pointSizeF(), usual.pointSizeF());
  EXPECT_EQ(widget<QComboBox>("Form1", "Combo4").fontMetrics().height(), height);
  QApplication::setFont(usual);
}

TEST_F(Keyboard, AsksForTheHelpOfThePageInFront) {
  FormWindow& main = open("Form1");
  QApplication::setActiveWindow(&main);
  main.findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(2);
  QTest::keyClick(&main, Qt::Key_F1);
  EXPECT_EQ(helpPage, QStringLiteral("winnings.html"));
}

}  // namespace
}  // namespace tallywick::test
