// SPDX-License-Identifier: GPL-3.0-or-later
// Words found in the manual, from the keyboard alone.
#include "qt/look.h"
#include "support/scratch_folder.h"
#include "ui/qt/windows/help_window.h"
#include "ui/qt/windows/manual_search.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>
#include <stdexcept>

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

HelpWindow* openHelp() {
  HelpWindow::showPage(QStringLiteral("settings.html"));
  for (QWidget* each : QApplication::topLevelWidgets()) {
    auto* help = dynamic_cast<HelpWindow*>(each);
    if (help != nullptr && help->isVisible()) return help;
  }
  throw std::logic_error("the manual is not open");
}

TEST(Manual, IsSearchedFromTheKeyboard) {
  HelpWindow* help = openHelp();
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

TEST(Manual, CanBeReadWhileDialogsWait) {
  HelpWindow* help = openHelp();
  auto* field = help->findChild<QLineEdit*>();
  std::string typed;
  const auto type = [&](Qt::Key letter) {
    EXPECT_TRUE(QTest::qWaitFor([help] {
      return help->windowHandle()->transientParent() == QApplication::activeModalWidget()->windowHandle();
    }));
    QTest::mouseClick(help->windowHandle(), Qt::LeftButton, {}, field->mapTo(help, field->rect().center()));
    QTest::keyClick(help->windowHandle(), letter);
    typed = field->text().toStdString();
  };
  QDialog outer;
  QTimer::singleShot(0, &outer, [&] {
    type(Qt::Key_A);
    QDialog inner(&outer);
    QTimer::singleShot(0, &inner, [&] {
      type(Qt::Key_B);
      inner.accept();
    });
    inner.exec();
    type(Qt::Key_C);
    outer.accept();
  });
  outer.exec();
  EXPECT_EQ(typed, "abc");
  help->close();
}

}  // namespace
}  // namespace tallywick::test
