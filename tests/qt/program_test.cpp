// SPDX-License-Identifier: GPL-3.0-or-later
// The program as it is started.
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
}

}  // namespace
}  // namespace tallywick::test
