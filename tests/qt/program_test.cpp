// SPDX-License-Identifier: GPL-3.0-or-later
// The program as it is started.
#include "support/host.h"
#include "support/scratch_folder.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

struct Outcome {
  int exitCode;
  std::string output;
  std::string errors;
};

Outcome run(const QStringList& arguments) {
  QProcess program;
  program.start(QStringLiteral(TALLYWICK_PROGRAM), arguments);
  program.waitForFinished();
  return {program.exitCode(), program.readAllStandardOutput().toStdString(),
          program.readAllStandardError().toStdString()};
}

class Program : public testing::Test {
 protected:
  QStringList pictureOf(const QStringList& more) {
    return QStringList{QStringLiteral("--folder"), QString::fromStdString(scratch.root().string()),
                       QStringLiteral("--screenshot"), picture} +
           more;
  }

  ScratchFolder scratch;
  QTemporaryDir pictures;
  QString picture = pictures.filePath(QStringLiteral("window.png"));
};

TEST_F(Program, SavesAPictureOfAWindow) {
  const Outcome made =
      run(pictureOf({QStringLiteral("--press"), QStringLiteral("mnuPowerBall3"), QStringLiteral("--window"),
                     QStringLiteral("Form3"), QStringLiteral("--size"), QStringLiteral("700x600")}));
  EXPECT_EQ(made.exitCode, 0) << made.errors;
  const QImage image(picture);
  EXPECT_EQ(image.size(), QSize(700, 600));
  EXPECT_GT(image.convertToFormat(QImage::Format_Indexed8).colorCount(), 4);
}

TEST_F(Program, TakesStepsInItsWindows) {
  const auto take = [this](const std::string& steps) {
    scratch.write("steps", steps);
    return run({QStringLiteral("--folder"), QString::fromStdString(scratch.root().string()),
                QStringLiteral("--now"), QStringLiteral("11-21-2026 12:00:00"), QStringLiteral("--steps"),
                QString::fromStdString((scratch.root() / "steps").string())});
  };
  const Outcome taken = take(
      "# Another window, and a box that waits for an answer.\n\npress PowerBall Play Selection\npress 07\n"
      "size 700x600\npicture " +
      picture.toStdString() + "\nclose\npress Searches\ntype Combo4: 7 17\npress mnuHelp\npress OK\n");
  EXPECT_EQ(taken.exitCode, 0) << taken.errors;
  EXPECT_EQ(QImage(picture).size(), QSize(700, 600));
  const std::pair<const char*, const char*> impossible[] = {
      {"\npress Nowhere", "step 2: nothing to press is called Nowhere"},
      {"type Nowhere: 7", "step 1: no field is called Nowhere"},
      {"choose List1: 99", "step 1: List1 has no line 99"},
      {"picture /no/such/folder/a.png", "step 1: /no/such/folder/a.png cannot be written"},
      {"fly", "step 1: \"fly\" is no step"}};
  for (const auto& [step, message] : impossible) {
    const Outcome failed = take(step);
    EXPECT_EQ(failed.exitCode, 1) << step;
    EXPECT_NE(failed.errors.find(message), std::string::npos) << failed.errors;
  }
}

TEST_F(Program, EndsWithOneAfterARuntimeErrorAndNamesTheFile) {
  const Outcome failed = run(pictureOf({QStringLiteral("--press"), QStringLiteral("Command52")}));
  EXPECT_EQ(failed.exitCode, 1);
  EXPECT_NE(failed.errors.find("QZRNUM62.Dat"), std::string::npos) << failed.errors;
}

TEST_F(Program, TellsWhatIsWrongWithItsCommandLine) {
  EXPECT_EQ(run({QStringLiteral("--page"), QStringLiteral("1")}).exitCode, 2);
  EXPECT_EQ(run({QStringLiteral("--no-such-option")}).exitCode, 2);
  const Outcome folderless =
      run({QStringLiteral("--folder"), pictures.path(), QStringLiteral("--screenshot"), picture});
  EXPECT_EQ(folderless.exitCode, 1);
  EXPECT_NE(folderless.errors.find("no record book"), std::string::npos);
  EXPECT_EQ(run(pictureOf({QStringLiteral("--size"), QStringLiteral("0x99999")})).exitCode, 2);
}

TEST_F(Program, EndsWithAMessageWhateverItsSurroundingsLack) {
  scratch.write("tallywick.ini", "servr=x\n");
  const Outcome misspelt = run(pictureOf({}));
  EXPECT_EQ(misspelt.exitCode, 0) << "a picture needs no settings";
  EXPECT_NE(misspelt.errors.find("tallywick.ini, line 1: there is no setting"), std::string::npos);
  picture = QStringLiteral("/no/such/folder/window.png");
  const Outcome unwritable = run(pictureOf({}));
  EXPECT_EQ(unwritable.exitCode, 1);
  EXPECT_NE(unwritable.errors.find("window.png cannot be written"), std::string::npos);
  if (!hasPosixFiles) return;  // A folder that a program runs in stays.
  QProcess shell;
  shell.start(
      QStringLiteral("/bin/sh"),
      {QStringLiteral("-c"),
       QStringLiteral(
           "mkdir \"$1\" && cd \"$1\" && rmdir \"$1\" && exec \"$0\" --folder book --screenshot x.png"),
       QStringLiteral(TALLYWICK_PROGRAM), pictures.filePath(QStringLiteral("gone"))});
  shell.waitForFinished();
  EXPECT_EQ(shell.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(shell.exitCode(), 1);
  EXPECT_TRUE(shell.readAllStandardError().contains("Path not found: book"));
}

}  // namespace
}  // namespace tallywick::test
