// SPDX-License-Identifier: GPL-3.0-or-later
// Balls that everybody can read, and lists that find and emphasise among many lines.
#include "qt/look.h"
#include "ui/qt/parts/ball.h"
#include "ui/qt/parts/line_ball.h"
#include "ui/qt/parts/line_list.h"
#include "ui/qt/parts/line_text.h"
#include "ui/qt/parts/theme.h"

#include <QImage>
#include <QPainter>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>

namespace tallywick::test {
namespace {

const Color ballColors_[] = {colors::buttonFace, colors::threeDLight, colors::cyan,
                             colors::magenta,    colors::red,         colors::lightBlue,
                             colors::green,      colors::yellow,      colors::lightCyan};

const QPalette palettes_[] = {lightPalette(), darkPalette(), highContrastPalette()};

BallLook lookOf(Color color) {
  BallLook look;
  look.number = QStringLiteral("27");
  if (color.kind == Color::Kind::rgb) look.fill = theme::toQColor(color, lightPalette());
  look.mark = ballMarkOf(color);
  look.dots = repeatOf(color);
  return look;
}

QImage imageOf(const BallLook& look, const QPalette& colors) {
  QImage image(40, 40, QImage::Format_Grayscale8);
  image.fill(Qt::white);
  QPainter painter(&image);
  paintBall(painter, image.rect(), look, colors);
  return image;
}

TEST(Balls, HaveReadableNumbersInEveryColourOnEveryDesktop) {
  for (const QPalette& colors : palettes_) {
    for (const Color color : ballColors_) {
      BallLook look = lookOf(color);
      for (const bool pressed : {false, true}) {
        look.pressed = pressed;
        const BallColors painted = ballColors(look, colors);
        EXPECT_GE(theme::contrast(painted.text, painted.ground), theme::textContrast)
            << color.text() << pressed;
      }
      const BallColors painted = ballColors(look, colors);
      EXPECT_GE(theme::contrast(painted.outline, colors.color(QPalette::Window)), theme::shapeContrast)
          << color.text();
    }
  }
}

TEST(Balls, OfLinesAreReadableOnEveryGround) {
  for (const QPalette& colors : palettes_) {
    for (const QColor& ground : {colors.color(QPalette::Base), colors.color(QPalette::Highlight),
                                 theme::mixed(colors.color(QPalette::Base), theme::winning, 0.14)}) {
      for (const auto kind : {LineBallKind::white, LineBallKind::roundRed, LineBallKind::squareGold}) {
        const BallColors painted = lineBallColors(kind, ground, colors);
        EXPECT_GE(theme::contrast(painted.text, painted.ground), theme::textContrast);
        EXPECT_GE(theme::contrast(painted.outline, ground), theme::shapeContrast);
        EXPECT_GE(theme::contrast(painted.caps, ground), theme::shapeContrast);
      }
    }
  }
}

TEST(Balls, AreToldApartWithoutTheirColours) {
  std::vector<QImage> images;
  for (Color color : {colors::buttonFace, colors::cyan, colors::magenta, colors::red, colors::lightBlue,
                      colors::green, colors::yellow, colors::lightCyan}) {
    BallLook look = lookOf(color);
    look.fill = Qt::lightGray;
    const QImage image = imageOf(look, lightPalette());
    EXPECT_FALSE(std::find(images.begin(), images.end(), image) != images.end()) << color.text();
    images.push_back(image);
  }
}

TEST(Balls, SayWhatTheirColourMeans) {
  BallButton ball;
  ball.setCaption(QStringLiteral("07"));
  std::set<QString> names;
  for (const Color color :
       {colors::buttonFace, colors::cyan, colors::magenta, colors::red, colors::lightCyan}) {
    ball.setColor(color);
    names.insert(ball.accessibleName());
    EXPECT_TRUE(ball.accessibleName().contains(QStringLiteral("07")));
  }
  EXPECT_EQ(names.size(), 5U);
}

TEST(ListedLines, AreReadByTheirForm) {
  const struct {
    const char* name;
    const char* line;
    LineKind kind;
    const char* cells;
  } cases[] = {
      {"a draw with its amount", " 11-18-2026    06 08 30 51 55   13  *  40", LineKind::draw,
       "11-18-2026|06|08|30|51|55|13|*|40||"},
      {"an amount in words", " 11-18-2026    06 08 30 51 55   13     $1.2 Billion", LineKind::draw,
       "11-18-2026|06|08|30|51|55|13||$1.2 Billion||"},
      {"an earlier draw", "11-18-2026     06 08 30 51 55     13", LineKind::draw,
       "11-18-2026|06|08|30|51|55|13||||"},
      {"a play", "  11-18-2026      06  08  30  51  55  13", LineKind::play,
       "11-18-2026|06|08|30|51|55|13||||"},
      {"a saved play", " 06  08  30  51  55  13", LineKind::savedPlay, "|06|08|30|51|55|13||||"},
      {"a marked amount", " 11-18-2026    143     * ", LineKind::amount, "11-18-2026|*|143||"},
      {"an amount that is not known", " 11-18-2026            ", LineKind::amount, "11-18-2026||||"},
      {"a prize of another game", " 5 of 5 Win:    $50,000", LineKind::other, ""},
      {"a winning ticket", " 11-18-2026   Winning Ticket... Play Number 3", LineKind::other, ""},
      {"a draw without its extra ball", " 11-18-2026    06 08 30 51 55   ", LineKind::other, ""},
      {"a number in words", " 11-18-2026    06 08 30 51 five   13", LineKind::other, ""},
      {"nothing", " ", LineKind::other, ""},
  };
  for (const auto& each : cases) {
    LineColumns columns = {{LineField::date, ""}, {LineField::amount, ""}, {LineField::matched, ""}};
    if (each.kind != LineKind::amount)
      columns.insert(columns.begin() + 1, {{LineField::whites, ""}, {LineField::extra, ""}});
    std::string cells;
    for (const std::string& cell : cellsOf(columns, each.line).value_or(std::vector<std::string>()))
      cells += cell + "|";
    EXPECT_EQ(readLine(each.line).kind, each.kind) << each.name;
    EXPECT_EQ(cells, each.kind == LineKind::other ? "" : std::string(each.cells)) << each.name;
  }
  EXPECT_FALSE(cellsOf({{LineField::date, ""}, {LineField::whites, ""}}, cases[0].line))
      << "the amount would go";
}

TEST(LineTexts, EmphasiseWholeFieldsOnly) {
  EXPECT_THAT(emphasisedRuns(" 11-06-2026    06 08 30 51 55   13", {"06", "13"}),
              testing::ElementsAre(TextRun{15, 2}, TextRun{32, 2}));
  EXPECT_THAT(emphasisedRuns(" 06 106 6", {"6"}), testing::ElementsAre(TextRun{8, 1}));
  EXPECT_THAT(emphasisedRuns(" 01-01-2020   Winning Ticket... Play", {"Winning Ticket...", "Winning Tick"}),
              testing::ElementsAre(TextRun{14, 17}));
  EXPECT_THAT(emphasisedRuns("  01-01-2020      01  02", {"  01-01-2020      01  02"}),
              testing::ElementsAre(TextRun{2, 22}));
}

TEST(LineTexts, QuoteWhatCommasWouldPart) {
  EXPECT_EQ(csvLine("  11-18-2026   06  * "), "11-18-2026,06,*");
  EXPECT_EQ(csvLine(" 06, \"x\" "), "\"06,\",\"\"\"x\"\"\"");
}

TEST(LineLists, FindADateThatIsTyped) {
  TextLines lines;
  for (const char* line :
       {" 11-18-2026    06", " 11-16-2026    05", " 10-31-2026    11", " 10-28-2026    36"})
    lines.add(line);
  LineList list(lines);
  QTest::keyClicks(&list, QStringLiteral("10-2"));
  EXPECT_EQ(list.currentIndex().row(), 3);
  list.keyboardSearch(QString());
  TextLines none;
  LineList empty(none);
  QTest::keyClicks(&empty, QStringLiteral("1"));
  EXPECT_FALSE(empty.currentIndex().isValid());
}

}  // namespace
}  // namespace tallywick::test
