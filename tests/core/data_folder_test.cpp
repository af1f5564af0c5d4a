// SPDX-License-Identifier: GPL-3.0-or-later
// Every way of writing a path leads to one real file, and errors carry the runtime's numbers.
#include "core/data_folder.h"

#include "core/os.h"
#include "core/runtime_error.h"
#include "core/work_files.h"
#include "support/raised.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <pthread.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace tallywick {
namespace {

using test::ScratchFolder;

TEST(DataFolder, EveryWayOfWritingAPathLeadsToOneFile) {
  const ScratchFolder scratch;
  const auto file = scratch.root() / "QzrNumbers" / "QZR6PWR" / "QZRNUM6.Dat";
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", "x");
  for (const char* written :
       {R"(QzrNumbers\QZR6PWR\QZRNUM6.Dat)", "QZRNUMBERS/qzr6pwr/QZRNUM6.dat",
        R"(C:\Program Files\Tallywick Software\Tallywick\QzrNumbers\QZR6PWR\QZRNUM6.Dat)",
        R"(c:/PROGRAM FILES/TALLYWICK SOFTWARE/TALLYWICK/QZRNUMBERS\\.\QZR6PWR\QZRNUM6.DAT)"}) {
    EXPECT_EQ(scratch.folder().resolve(written), file) << written;
  }
}

TEST(DataFolder, AFileIsNeverCreatedInASecondCase) {
  const ScratchFolder scratch;
  replaceFile(scratch.folder().resolve(R"(QzrNumbers\QZR6PWR\QZR6PWR7.Ply)"), "1");
  replaceFile(scratch.folder().resolve(R"(QZRNUMBERS\QZR6PWR\qzr6pwr7.ply)"), "2");
  EXPECT_EQ(scratch.snapshot(),
            (std::map<std::string, std::string>{{"QzrNumbers/QZR6PWR/QZR6PWR7.Ply", "2"}}));
}

TEST(DataFolder, TwoCasesSideBySideAreOneFileForAllWhoAsk) {
  const ScratchFolder scratch;
  const auto folder = scratch.root() / "QzrNumbers" / "QZR6PWR";
  std::ofstream(folder / "qzrnum6.dat") << "small";
  std::ofstream(folder / "QZRNUM6.Dat") << "large";
  EXPECT_EQ(scratch.read("QzrNumbers/QZR6PWR/qzrnum6.dat"), "large");
}

TEST(DataFolder, APlainFileDoesNotHideTheFolderOfItsName) {
  const ScratchFolder scratch;
  std::ofstream(scratch.root() / "QZRNUMBERS") << "x";
  scratch.write("QzrNumbers/QZR6PWR/QZRNUM6.Dat", "draws");
  EXPECT_TRUE(scratch.exists("QZRNUMBERS/QZR6PWR/QZRNUM6.Dat"));
}

TEST(DataFolder, NoPathLeavesTheFolder) {
  const ScratchFolder scratch;
  for (const char* written : {R"(QzrNumbers\..\..\x)", "/etc/passwd", R"(\x)", R"(C:\Windows\x)",
                              R"(C:\Program Files\Tallywick Software\Tallywick2\x)"}) {
    EXPECT_THROW(scratch.folder().resolve(written), RuntimeError) << written;
  }
}

TEST(RuntimeError, TheSystemsErrorsHaveTheRuntimesNumbers) {
  const ScratchFolder scratch;
  const auto numberOf = [](const std::filesystem::path& file) {
    const test::Raised raised = test::raisedBy([&] { os::readFile(file); });
    EXPECT_NE(raised.where.find(file.string()), std::string::npos);
    return raised.number;
  };
  EXPECT_EQ(numberOf(scratch.root() / "none"), 53);
  EXPECT_EQ(numberOf(scratch.root() / "none" / "none"), 76);
  EXPECT_EQ(numberOf(scratch.root() / "QzrNumbers"), 75);
#ifdef _WIN32
  EXPECT_EQ(numberOf("nul"), 75);
#else
  const auto pipe = scratch.root() / "pipe";
  ::mkfifo(pipe.c_str(), 0666);
  EXPECT_EQ(numberOf(pipe), 75);
  EXPECT_EQ(numberOf("/dev/null"), 75);
  EXPECT_EQ(notAFile(pipe).where(), pipe.string() + " (not a file)");
  EXPECT_THROW(replaceFile(pipe, "text"), RuntimeError) << "somebody waits at that pipe";
#endif
  EXPECT_EQ(runtimeErrorFrom(std::make_error_code(std::errc::no_space_on_device), "f").number(), 61);
  EXPECT_EQ(runtimeErrorFrom(std::make_error_code(std::errc::read_only_file_system), "f").number(), 70);
}

// The program is started by a child's child: in every child of this test no second fork succeeds.
TEST(StartedProgram, AChildThatCannotForkReportsIt) {
#ifdef _WIN32
  GTEST_SKIP() << "needs fork";
#else
  static bool forbids = false;
  ::pthread_atfork(nullptr, nullptr, [] {
    const rlimit none = {0, 0};
    if (forbids) ::setrlimit(RLIMIT_NPROC, &none);
    // The limit is none for root.
    if (forbids && ::getuid() == 0 && ::setuid(65534) != 0) ::_exit(0);
  });
  forbids = true;
  const test::Raised raised = test::raisedBy([] { os::startProgram("/bin/true", {}, "/"); });
  forbids = false;
  EXPECT_EQ(raised.number, 53);
  EXPECT_EQ(raised.where, "/bin/true cannot be started (Resource temporarily unavailable)");
#endif
}

TEST(RuntimeError, TheBoxTellsNumberAndText) {
  EXPECT_EQ(RuntimeError(ErrorNumber::fileNotFound, "QZRNUM6.Dat").boxText(),
            "Run-time error '53':\n\nFile not found");
  EXPECT_EQ(RuntimeError(-2147193504, "Text.", "").boxText(),
            "Run-time error '-2147193504 (80046d60)':\n\nText.");
}

}  // namespace
}  // namespace tallywick
