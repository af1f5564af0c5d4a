// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog about the draws: a draw is typed in, refused beside its field, gets an amount and is removed.
#include "ui/qt/dialogs/draws_dialog.h"

#include "app/draws_note.h"
#include "core/clock.h"
#include "support/scratch_folder.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

template <typename Widget>
Widget& part(QWidget& window, const char* name) {
  return *window.findChild<Widget*>(QString::fromLatin1(name));
}

class Draws : public testing::Test {
 protected:
  Draws() {
    std::string draws;
    for (const char* date : {"11,18", "11,14", "11,11"})
      draws += records({std::string(date) + ",2026,05,14,23,41,60,07,2"});
    for (const char* file : {"QZRNUM6.Dat", "QZRNUM62.Dat"})
      scratch.write(std::string("QzrNumbers/QZR6PWR/") + file, draws);
    dialog = std::make_unique<DrawsDialog>(scratch.folder(), clock, std::vector<ExportAddress>{}, powerBall,
                                           nullptr);
  }

  std::string text(const char* label) { return part<QLabel>(*dialog, label).text().toStdString(); }
  void press(const char* name) { part<QPushButton>(*dialog, name).click(); }
  /// Types a draw in; returns what is written beside the white balls.
  QString type(const QString& numbers, const QString& extra) {
    QString beside;
    QTimer::singleShot(0, [&] {
      QWidget& form = *QApplication::activeModalWidget();
      part<QLineEdit>(form, "typed0").setText(QStringLiteral("11-16-2026"));
      auto& white = part<QLineEdit>(form, "typed1");
      white.setText(numbers);
      part<QLineEdit>(form, "typed2").setText(extra);
      part<QPushButton>(form, "addDraw").click();
      if (!form.isVisible()) return;
      beside = white.accessibleDescription();
      static_cast<QDialog&>(form).reject();
    });
    press("typeIn");
    return beside;
  }

  ScratchFolder scratch;
  FixedClock clock{"11-21-2026", "12:00:00"};
  std::unique_ptr<DrawsDialog> dialog;
};

TEST_F(Draws, AreTypedInAmendedAndRemoved) {
  EXPECT_EQ(text("drawsSummary"),
            "3 draws, the first of 11-11-2026, the newest of 11-18-2026.\n"
            "One scheduled draw between them is missing: 11-16-2026.");
  EXPECT_TRUE(type(QStringLiteral("1 2 3 4 4"), QStringLiteral("7")).contains(QLatin1Char('4')));
  EXPECT_FALSE(dialog->hasChanged());
  type(QStringLiteral("9 1 2 3 4"), QStringLiteral("7"));
  EXPECT_EQ(text("drawsReport"), "PowerBall: the draw of 11-16-2026 was added.");
  EXPECT_NE(text("drawsSummary").find("No scheduled draw between them is missing."), std::string::npos);

  auto& amounts = part<QTableWidget>(*dialog, "amounts");
  ASSERT_EQ(amounts.rowCount(), 4);
  amounts.item(1, 1)->setText(QStringLiteral("148"));
  press("saveAmounts");
  EXPECT_EQ(text("drawsReport"), "1 amount was saved.");
  EXPECT_NE(scratch.read("QzrNumbers/QZR6PWR/QzrPwr.Win").find(R"("11","16","2026","148","0")"),
            std::string::npos);
  amounts.item(1, 2)->setText(QStringLiteral("many"));
  press("saveAmounts");
  EXPECT_EQ(amounts.item(1, 2)->text(), QStringLiteral("many")) << "what was typed is lost";

  QTimer::singleShot(0, [] { qobject_cast<QInputDialog*>(QApplication::activeModalWidget())->accept(); });
  press("removeDraw");
  EXPECT_EQ(text("drawsReport"), "PowerBall: the draw of 11-16-2026 was removed.");
  EXPECT_FALSE(part<QPushButton>(*dialog, "removeDraw").isEnabled());
}

TEST_F(Draws, OfDoublePlayHaveASentenceWhereNumbersAreMissing) {
  const std::string blank = "11,18,2026,05,14,23,41,60,07,2,DP,,,,,,,1";
  const std::string known = "11,16,2026,05,14,23,41,60,07,2,DP,11,12,13,14,15,16,1";
  const auto note = [this](std::initializer_list<std::string> draws) {
    std::string text;
    for (const std::string& draw : draws) text += records({draw});
    scratch.write("QzrNumbers/QZR6PWR/QZRNUM72.Dat", text);
    return doublePlayNote(scratch.folder());
  };
  EXPECT_EQ(note({known, known}), "");
  EXPECT_NE(note({blank}).find("no numbers are known"), std::string::npos);
  EXPECT_NE(note({blank, known}).find("for 1 of 2 draws, that of 11-16-2026;"), std::string::npos);
}

TEST_F(Draws, ThatAreLongPastHaveASentenceOnTheirAge) {
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", records({"11,18,2026,05,14,23,41,60,07,2"}));
  const std::pair<const char*, const char*> cases[] = {{"12-01-2026", ""},
                                                       {"12-02-2026", "2 weeks"},
                                                       {"01-17-2027", "2 months"},
                                                       {"11-01-2028", "23 months"},
                                                       {"12-01-2029", "3 years"}};
  for (const auto& [today, age] : cases) {
    const std::string note = drawsAgeNote(powerBall, scratch.folder(), FixedClock(today, "12:00:00"));
    EXPECT_EQ(note, *age == 0 ? "" : "The newest PowerBall draw is " + std::string(age) + " old.");
  }
}

}  // namespace
}  // namespace tallywick::test
