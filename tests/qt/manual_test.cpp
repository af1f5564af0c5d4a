// SPDX-License-Identifier: GPL-3.0-or-later
// Words found in the manual, from the keyboard alone.
#include "qt/look.h"
#include "support/scratch_folder.h"
#include "ui/qt/windows/help_window.h"
#include "ui/qt/windows/manual_search.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

TEST(Manual, FindsTheBestSentenceOfEachPage) {
  const ScratchFolder scratch;
  const std::string line = "<p>Contents | Prizes</p>";
  scratch.write("index.html", "<title>Front</title>" + line + "<p>The prize. A wish.</p>");
  scratch.write("a.html", "<title>Plays</title>" + line +
                              "<p>A play waits. It won a <b>prize</b>! Each play. Plays.</p>");
  scratch.write("b.html",
                "<title>Keys</title>" + line +
                    "<table><tr><td>Ctrl+Z</td><td>Undo</td></tr></table><p>Waiting. They wait.</p>");
  ManualIndex index(QString::fromStdString(scratch.root().string()));
  while (index.readNext()) continue;
  const struct {
    const char* words;
    const char* places;
    bool areWhole;
  } cases[] = {
      {"prize", "Plays: It won a prize!; Front: The prize.; ", true},
      {"What is the PRIZES?", "Plays: It won a prize!; Front: The prize.; ", true},
      {"undo z", "Keys: Ctrl+Z: Undo; ", true},
      {"play prize", "Plays: It won a prize!; ", true},
      {"prize zebra", "Plays: It won a prize!; Front: The prize.; ", false},
      {"wait", "Plays: A play waits.; Keys: They wait.; ", true},
      {"contents", "", false},
  };
  for (const auto& [words, places, areWhole] : cases) {
    const FoundPlaces found = index.find(QString::fromLatin1(words));
    std::string text;
    for (const FoundPlace& place : found.places)
      text += place.title.toStdString() + ": " + place.sentence.toStdString() + "; ";
    EXPECT_EQ(text, places) << words;
    EXPECT_EQ(found.areWhole, areWhole) << words;
  }
}

TEST(Manual, IsSearchedFromTheKeyboard) {
  HelpWindow::showPage(QStringLiteral("settings.html"));
  HelpWindow* help = nullptr;
  for (QWidget* each : QApplication::topLevelWidgets()) {
    if (auto* found = dynamic_cast<HelpWindow*>(each)) help = found;
  }
  ASSERT_NE(help, nullptr);
  QApplication::setActiveWindow(help);
  auto* text = help->findChild<QTextBrowser*>();
  QTest::keyClick(text, Qt::Key_F, Qt::ControlModifier);
  auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(field, nullptr);
  QTest::keyClicks(field, QStringLiteral("undo"));
  QCoreApplication::processEvents();
  lookAndTab(*help);
  auto* list = help->findChild<QListWidget*>();
  ASSERT_GT(list->count(), 1);
  field->setFocus();
  QTest::keyClick(field, Qt::Key_Down);
  EXPECT_EQ(list->currentRow(), 1);
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_NE(text->source().fileName(), QStringLiteral("settings.html"));
  EXPECT_TRUE(text->hasFocus());
  EXPECT_FALSE(text->extraSelections().isEmpty());
  const QTextCursor at = text->textCursor();
  EXPECT_GT(at.position(), 0);
  EXPECT_TRUE(list->item(1)->text().contains(at.block().text().mid(at.positionInBlock(), 6)));
  QTest::keyClick(text, Qt::Key_Escape);
  EXPECT_FALSE(list->isVisible());
  EXPECT_TRUE(text->extraSelections().isEmpty());
  QTest::keyClick(text, Qt::Key_Escape);
  EXPECT_FALSE(help->isVisible());
}

}  // namespace
}  // namespace tallywick::test
