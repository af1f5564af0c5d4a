// SPDX-License-Identifier: GPL-3.0-or-later
// Every control has its widget and every named widget its control; what changes on either side shows on the
// other.
#include "app/main_form.h"
#include "qt/desk_fixture.h"
#include "setup/ball_bitmap.h"
#include "support/record_book.h"
#include "ui/qt/parts/ball_picture.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/picker.h"
#include "ui/qt/windows/make_window.h"

#include <QAction>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTabWidget>

namespace tallywick::test {
namespace {

class EveryWindow : public Desktop, public testing::WithParamInterface<const char*> {};
INSTANTIATE_TEST_SUITE_P(Forms, EveryWindow,
                         testing::Values("Form1", "Form3", "Form5", "frmSplash", "frmAbout"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST_P(EveryWindow, HasOneNamedWidgetForEachControl) {
  FormWindow& shown = open(GetParam());
  for (const Control* control : shown.form().controls()) {
    EXPECT_EQ(shown.findChildren<QObject*>(QString::fromStdString(control->name())).size(), 1)
        << control->name();
  }
  for (const QObject* child : shown.findChildren<QObject*>()) {
    const QString name = child->objectName();
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_")) ||
        !(child->isWidgetType() || qobject_cast<const QAction*>(child)))
      continue;
    // What the toolkit makes inside of its own widgets has names too.
    if (child->parent() != nullptr && child->parent()->inherits("QTabBar")) continue;
    EXPECT_NE(shown.form().find(name.toStdString()), nullptr) << name.toStdString();
  }
}

class Bindings : public Desktop {};

TEST_F(Bindings, NamesAControlThatNoWidgetShows) {
  SplashForm form;
  const Label forgotten(form, "lblForgotten");
  PlayJudge judge(scratch.folder());
  Desk desk = {.runner = platform, .folder = scratch.folder(), .judge = judge};
  try {
    makeWindow(form, desk);
    FAIL() << "a control without a widget went unnoticed";
  } catch (const std::logic_error& error) {
    EXPECT_STREQ(error.what(), "frmSplash: no widget for lblForgotten");
  }
}

TEST_F(Bindings, ShowsWhatAHandlerChanges) {
  open("Form1");
  auto& form = static_cast<MainForm&>(*application.find("Form1"));
  platform.run([&] {
    form.summary.Label16.setCaption("Plays && Draws");
    form.bar.Command48.setCaption("A & B Selection");
    form.update.Command2.hide();
    form.search.havePlayed.Command21.setEnabled(false);
    form.search.twoThree.Combo4.add(" 11-21-2026    01 02 03 04 05   06");
    form.search.twoThree.Combo4.setText("typed");
  });
  EXPECT_EQ(widget<QLabel>("Form1", "Label16").text(), QStringLiteral("Pla&ys && Draws"));
  EXPECT_EQ(widget<QPushButton>("Form1", "Command48").text(), QStringLiteral("A && B &Selection"));
  EXPECT_TRUE(widget<QPushButton>("Form1", "Command2").isHidden());
  EXPECT_FALSE(widget<QPushButton>("Form1", "Command21").isEnabled());
  EXPECT_EQ(widget<QComboBox>("Form1", "Combo4").currentText(), QStringLiteral("typed"));
  EXPECT_EQ(widget<QComboBox>("Form1", "Combo4").count(), 1);
}

TEST_F(Bindings, TakesChosenAndTypedTextsAndTabs) {
  open("Form1");
  auto& form = static_cast<MainForm&>(*application.find("Form1"));
  ComboBox& combo = form.search.twoThree.Combo4;
  platform.run([&] {
    combo.add(" 11-18-2026    06 08 30 51 55   13");
    combo.add(" 11-16-2026    05 19 31 64 68   20");
    form.bar.SSTab1.setTab(1);
  });
  auto& picker = widget<Picker>("Form1", "Combo4");
  picker.setFocus();
  // The date is inside of the line, behind a blank.
  picker.lineEdit()->selectAll();
  QTest::keyClicks(picker.lineEdit(), QStringLiteral("11-16"));
  EXPECT_EQ(combo.text(), "11-16");
  ASSERT_EQ(picker.completer()->completionCount(), 1);
  EXPECT_EQ(picker.completer()->currentCompletion(), QStringLiteral(" 11-16-2026    05 19 31 64 68   20"));
  Q_EMIT picker.activated(1);
  EXPECT_EQ(combo.text(), " 11-16-2026    05 19 31 64 68   20");
  widget<QTabWidget>("Form1", "SSTab1").setCurrentIndex(3);
  EXPECT_EQ(form.bar.SSTab1.tab(), 3);
}

/// Counts the rows that a view asks for.
class CountingDelegate : public QStyledItemDelegate {
 public:
  void paint(QPainter*, const QStyleOptionViewItem&, const QModelIndex&) const override { ++rows; }
  QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
    ++rows;
    return {200, 20};
  }
  mutable int rows = 0;
};

TEST_F(Bindings, ShowsTheBooksOwnPicturesAndDrawsThoseOfANewBook) {
  writeRecordBook(scratch);
  scratch.write("QzrNumbers/PlyNumbers/#01.bmp", setup::ballPicture(setup::BallKind::white, 1));
  scratch.write("QzrNumbers/PlyNumbers/%01.bmp", setup::ballPicture(setup::BallKind::white, 2));
  open("Form1");
  platform.run([this] { click(*application.find("Form1")->find("Command3")); });
  const auto isDrawn = [this](const char* image) {
    return static_cast<BallPicture&>(widget<QWidget>("Form1", image)).picture().isNull();
  };
  EXPECT_TRUE(isDrawn("Image1"));
  EXPECT_FALSE(isDrawn("Image6"));
}

TEST_F(Bindings, OpensAMillionLinesByTheFewThatCanBeSeen) {
  open("Form1").show();
  auto& form = static_cast<MainForm&>(*application.find("Form1"));
  CountingDelegate delegate;
  auto& list = widget<LineList>("Form1", "List4");
  auto& picker = widget<Picker>("Form1", "Combo4");
  for (QAbstractItemView* view : {static_cast<QAbstractItemView*>(&list), picker.view()})
    view->setItemDelegate(&delegate);
  for (int i = 0; i < 1'000'000; ++i) {
    form.summary.List4.add("11-18-2026     06 08 30 51 55     13");
    form.search.twoThree.Combo4.add(" 11-18-2026    06 08 30 51 55   13");
  }
  platform.refresh();
  list.scrollToBottom();
  list.grab();
  picker.showPopup();
  platform.refresh();
  EXPECT_EQ(list.model()->rowCount() + picker.count(), 2'000'000);
  EXPECT_GT(delegate.rows, 0);
  EXPECT_LT(delegate.rows, 1000);
}

}  // namespace
}  // namespace tallywick::test
