// SPDX-License-Identifier: GPL-3.0-or-later
// The whole way: a published tree, a real server, the real program and the sort tool that it starts.
#include "ftp_servers.h"
#include "setup/new_folder.h"
#include "setup/publish.h"
#include "support/host.h"
#include "support/scratch_folder.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>

namespace tallywick::test {
namespace {

constexpr std::uint64_t seed = 7;
const Day olderDay = dayOf(2026, 11, 17);
const Day newerDay = dayOf(2026, 11, 21);

std::string quoted(const std::filesystem::path& path) {
  return "\"" + path.string() + "\"";
}

/// What the program prints; it is killed where it does not end.
std::string outputOf(const std::string& lines, const ScratchFolder& book, const std::string& server) {
  putText(book.root() / "lines", lines);
  const std::string source = server.empty() ? "" : " --server " + server;
#ifdef _WIN32
  const std::string quote = "\"";
  const std::string command = "\"\"" TALLYWICK_SCRIPT "\" --folder ";
#else
  const std::string quote;
  const std::string command = "timeout 60 \"" TALLYWICK_SCRIPT "\" --folder ";
#endif
  EXPECT_EQ(std::system((command + quoted(book.root()) + source + " " + quoted(book.root() / "lines") +
                         " > " + quoted(book.root() / "out") + quote)
                            .c_str()),
            0);
  return textOf(book.root() / "out");
}

TEST(WholeUpdate, BringsPublishedDrawsAndSortsWhatIsStillToCome) {
  // Published on Windows, where one folder has both spellings, and served where it has not.
  if (!hasPosixFiles) GTEST_SKIP() << "needs a server that takes both spellings of a folder";
  const ScratchFolder newer;
  const ScratchFolder book;
  setup::writeFolder(newer.root(), setup::sampleContents(newerDay, seed));
  setup::writeFolder(book.root(), setup::sampleContents(olderDay, seed));
  book.write("PWF.TXT", serverPassword);
  book.write("PWF2.TXT", serverLogin);
  const std::string drawn = records({"11-18-2026,01,02,03,04,05,06,5000000"});
  const std::string next = records({"11-28-2026,01,02,03,04,05,06,5000000"});
  const std::string later = records({"12-02-2026,01,02,03,04,05,06,5000000"});
  book.write("QzrNumbers/QZR6PWR/QZR6PWR1.Ply", later + drawn + next);

  const ScratchFolder tree;
  std::ostringstream out;
  setup::publish(tree.root() / "root", newer.root(), out);
  const ServerProcess server("good_server.py",
                             {(tree.root() / "root").string(), (tree.root() / "log").string()});
  const std::string pictures = "click Command3\nshow Image1 Image6\n";
  const std::string before = outputOf(pictures, book, server.address());
  const std::string after =
      outputOf("now 11-21-2026 07:00:01\nclick Command2\nshow Image1 Image6\n", book, server.address());

  for (const char* draws : {"QZR6PWR/QZRNUM6.Dat", "QZR6PWR/QZRNUM62.Dat", "QZR6PWR/QZRNUM72.Dat",
                            "QZR6PWR/QzrPwr.Win", "QZR6MEG/QZRNUM6.Dat", "QZR6MEG/QzrMeg.Win"}) {
    const std::string file = std::string("QzrNumbers/") + draws;
    EXPECT_EQ(book.read(file), newer.read(file)) << file;
  }
  EXPECT_EQ(book.read("QzrNumbers/QZR6PWR/QZR6PWR2.Ply"), drawn);
  EXPECT_EQ(after.substr(after.rfind("{\"name\":\"Image1\"")), outputOf(pictures, newer, server.address()));
  EXPECT_NE(after.substr(after.rfind("{\"name\":\"Image1\"")), before) << "the pictures of the older draw";
  for (int wait = 0; wait < 500 && book.read("QzrNumbers/QZR6PWR/QZR6PWR1.Ply") != next + later; ++wait) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_EQ(book.read("QzrNumbers/QZR6PWR/QZR6PWR1.Ply"), next + later) << "by the sort tool";

  // The menu entries spell the server's folders in another way.
  for (const auto& part : setup::sampleContents(olderDay, seed).games) setup::replaceDraws(book.root(), part);
  outputOf("click mnuPowerBall2\nclick Command4\nclick mnuMegaMillions2\n", book, server.address());
  for (const std::string file : {"QzrNumbers/QZR6PWR/QZRNUM6.Dat", "QzrNumbers/QZR6MEG/QZRNUM6.Dat"})
    EXPECT_EQ(book.read(file), newer.read(file)) << file;
}

TEST(WholeUpdate, BringsExportedDrawsOnceAndMovesDrawnPlays) {
  const ScratchFolder web;
  const auto file = [&](const char* name) { return (web.root() / name).string(); };
  makeCertificate(file("authority"));
  makeCertificate(file("certificate"), thisComputer, file("authority"));
  const ServerProcess server("web_server.py", {file("certificate"), file("log")});
  const ScratchFolder book;
  setup::writeFolder(book.root(), setup::sampleContents(olderDay, seed));
  const std::string address = "=https://" + server.address() + "/file/";
  book.write("tallywick.ini", "powerball-draws" + address + "pwr\nmega-millions-draws" + address + "meg\n");
  const std::string drawn = records({"11-18-2026,10,20,30,40,50,06,0111110"});
  const std::string next = records({"11-28-2026,01,02,03,04,05,06,5000000"});
  book.write("QzrNumbers/QZR6PWR/QZR6PWR1.Ply", drawn + next);
  std::string pwr = "Draw Date,Winning Numbers,Multiplier\n";
  std::string meg = "Draw Date,Winning Numbers,Mega Ball,Multiplier\n";
  for (Day day = newerDay; day > newerDay - 110; day += -1) {
    pwr += displayDate(day) + ",10 20 30 40 50 06,2\n";
    meg += displayDate(day) + ",11 21 31 41 51,07,3\n";
  }
  putText(file("pwr"), pwr);
  putText(file("meg"), meg);

  setVariable("SSL_CERT_FILE", file("authority"));
  const std::string update = "now 11-21-2026 12:00:00\nclick Command2\n";
  EXPECT_EQ(outputOf(update + "print List1\n", book, "").find("11-21-2026"), std::string::npos)
      << "an update fills no list";
  EXPECT_EQ(book.read("QzrNumbers/QZR6PWR/QZR6PWR2.Ply"), drawn);
  EXPECT_EQ(outputOf("print List1\n", book, "").substr(0, 38), " 11-21-2026    10 20 30 40 50   06    ");
  const auto before = book.snapshot();
  const std::string again = outputOf(update, book, "");
  setVariable("SSL_CERT_FILE", "");
  EXPECT_NE(again.find("is completed"), std::string::npos);
  std::string changed;
  for (const auto& [name, text] : book.snapshot()) {
    if (name.ends_with(".Ply") || name == "lines" || name == "out") continue;
    if (!before.contains(name) || before.at(name) != text) changed += name + " ";
  }
  EXPECT_EQ(changed, "");
  EXPECT_EQ(book.read("QzrNumbers/QZR6PWR/QZR6PWR2.Ply"), drawn);
}

}  // namespace
}  // namespace tallywick::test
