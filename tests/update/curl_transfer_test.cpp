// SPDX-License-Identifier: GPL-3.0-or-later
// The FTP client against a real server: both modes, both listings, both directions.
#include "transfer_test.h"
#include "update/ftp_operation.h"

#include <algorithm>

namespace tallywick::test {
namespace {

constexpr std::string_view folderThere = "/D:/QZR/Z1-Pwr/Qzr6/";

class RealServer : public TransferTest {
 protected:
  void SetUp() override {
    TransferTest::SetUp();
    const std::filesystem::path folder = driveOf(tree.root() / "root") / "QZR/Z1-Pwr/Qzr6";
    putText(folder / "QZRNUM6.Dat", draws);
    putText(folder / "empty", "");
    putText(folder / "odd #1;type=a %41.Win", "odd");
    std::filesystem::create_directory(folder / "a folder");
  }

  ServerProcess serve(std::vector<std::string> wishes = {}) {
    wishes.insert(wishes.begin(), {served(tree.root() / "root").string(), (tree.root() / "log").string()});
    return ServerProcess("good_server.py", wishes);
  }
  std::vector<std::string> commands(const std::string& verb) {
    std::istringstream log(textOf(tree.root() / "log"));
    std::vector<std::string> found;
    for (std::string line; std::getline(log, line);) {
      if (line.substr(0, line.find(' ')) == verb) found.push_back(line);
    }
    return found;
  }
  void expectAllFetched() {
    EXPECT_EQ(get("qzrnum6.dat"), draws);
    EXPECT_EQ(get("odd #1;type=a %41.Win"), "odd");
    EXPECT_TRUE(scratch.exists(join(pwrHere, "empty")));
    EXPECT_EQ(scratch.snapshot().size(), before.size() + 2) << "a file too many or twice";
  }

  ScratchFolder tree;
  const std::string draws = std::string(300'000, 'd') + "\r\nend";
};

TEST_F(RealServer, GivesEveryPlainFileOfItsFolder) {
  const ServerProcess server = serve();
  {
    const auto component = connected("ftp://" + server.address());
    component->setProgressWindow(true);
    component->download(folderThere, "*.*", pwrHere);
    EXPECT_TRUE(window.closed == 1 && !window.open);
  }
  EXPECT_EQ(commands("QUIT").size(), 1U);
  expectAllFetched();
  EXPECT_EQ(commands("CWD"), std::vector<std::string>{"CWD /D:/QZR/Z1-Pwr/Qzr6"});
  EXPECT_EQ(commands("MLSD").size(), 1U);
  EXPECT_TRUE(commands("PASV").empty()) << "the extended command was not enough";
  EXPECT_EQ(commands("USER").size(), 1U) << "one connection serves all";
  const auto isEndOfDraws = [&](const TransferInfo& info) {
    return info.file == "QZRNUM6.Dat" && info.bytesDone == draws.size() && info.bytesInAll == draws.size();
  };
  EXPECT_TRUE(std::ranges::any_of(listener.infos, isEndOfDraws));
  EXPECT_TRUE(watch.last.files == 3 && watch.last.filesInAll == 3 && watch.last.bytes == draws.size() + 3);
}

TEST_F(RealServer, ListsAsUnixOrAsWindowsDoesAndCallsBack) {
  for (const char* style : {"unix", "windows-list"}) {
    std::filesystem::remove(tree.root() / "log");
    const ServerProcess server = serve({"no-mlsd", style});
    connected(server.address(), false)->download(folderThere, "*.*", pwrHere);
    EXPECT_EQ(window.closed, 0) << "nobody asked for it";
    expectAllFetched();
    EXPECT_EQ(commands("LIST").size(), 1U);
    EXPECT_FALSE(commands("EPRT").empty());
    EXPECT_TRUE(commands("EPSV").empty());
  }
}

TEST_F(RealServer, TakesFilesAndFolders) {
  scratch.write("QzrNumbers/QZR6PWR/TALLYWICK.JNL.tw~", "work");
  std::filesystem::create_directory(scratch.root() / "QzrNumbers/QZR6PWR/folder");
  const ServerProcess server = serve();
  const auto component = connected(server.address());
  EXPECT_FALSE(component->directoryExists("/D:/new"));
  component->createDirectory("/D:/new");
  EXPECT_TRUE(component->directoryExists("/D:/new"));
  component->upload(pwrHere, "*.*", "/D:/new/");
  EXPECT_EQ(textOf(driveOf(tree.root() / "root") / "new/qzrnum6.dat"), "old draws");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(driveOf(tree.root() / "root") / "new"), {}), 2);
  EXPECT_THAT(errorOf([&] { component->createDirectory("/D:/new"); }), testing::HasSubstr("refuses"));
  EXPECT_THAT(errorOf([&] { component->createDirectory("x\r\nDELE y"); }),
              testing::HasSubstr("not a folder"));
}

TEST(CurlOption, ThatTheLibraryDoesNotTakeIsAnError) {
  FtpSession session;
  session.host = "127.0.0.1";
  FtpOperation operation(session, "");
  try {
    operation.set(CURLOPT_USE_SSL, 99L);
    FAIL() << "it went unnoticed";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.description(), "The transfer failed: the transfer library rejects the setting USE_SSL");
  }
}

}  // namespace
}  // namespace tallywick::test
