// SPDX-License-Identifier: GPL-3.0-or-later
// Download and Upload: their properties, their check, and what they ask of their component, in order.
#include "support/fake_transfer.h"
#include "update/folder_transfer.h"

#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

using testing::Test;

template <typename Transfer>
void fillIn(Transfer& transfer) {
  transfer.setServer("10.0.0.1");
  transfer.setLogin("me");
  transfer.setPassword("secret");
  transfer.setSourceFolder("/D:/QZR/Z1-Pwr/Qzr6");
  transfer.setTargetFolder(R"(C:\Here)");
}

template <typename Transfer>
std::string errorOf(Transfer& transfer) {
  try {
    transfer.Start();
  } catch (const RuntimeError& error) {
    return join(error.source(), " ", std::to_string(error.number()), " ", error.description());
  }
  return "none";
}

TEST(Download, AsksForItsPropertiesInOrderBeforeAnythingElse) {
  FakeTransfer::Log log;
  Download download(fakeTransfers(log));
  EXPECT_TRUE(download.Passive());
  EXPECT_FALSE(download.ShowTransferWindow());
  const auto missing = [](int number, std::string_view name) {
    return join("ftp.Download ", std::to_string(number), " A Download ", name,
                " property has not beeen specified.");
  };
  EXPECT_EQ(errorOf(download), missing(-2147193504, "Server"));
  download.setServer("s");
  EXPECT_EQ(errorOf(download), missing(-2147193503, "Login"));
  download.setLogin("l");
  EXPECT_EQ(errorOf(download), missing(-2147193502, "Password"));
  download.setPassword("p");
  EXPECT_EQ(errorOf(download), missing(-2147193501, "SourceFolder"));
  download.setSourceFolder("/a");
  EXPECT_EQ(errorOf(download), missing(-2147193500, "TargetFolder"));
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(transferClassError(28005, "ftp.Download").description(),
            "An unrecognized error was encountered.");
  EXPECT_EQ(transferClassError(28000, "").boxText(),
            "Run-time error '-2147193504 (80046d60)':\n\n"
            "A Download Server property has not beeen specified.");
}

TEST(Download, SetsItsComponentUpAndCopiesTheWholeFolder) {
  FakeTransfer::Log log;
  Download download(fakeTransfers(log));
  fillIn(download);
  download.setServer("fttp://ftp://10.fttp://0.0.1");
  download.setPassive(false);
  download.setShowTransferWindow(true);
  download.Start();
  EXPECT_EQ(log, (FakeTransfer::Log{"prepare", "user me", "password secret", "host ftp://10.0.0.1", "active",
                                    "window", "open", R"(download /D:/QZR/Z1-Pwr/Qzr6/ *.* C:\Here\)"}));
  log.clear();
  download.setSourceFolder("/a/");
  download.setTargetFolder(R"(C:\Here\)");
  download.Start();
  EXPECT_EQ(log.back(), R"(download /a/ *.* C:\Here\)");
}

TEST(Upload, IsTheMirrorAndNamesItselfInErrors) {
  FakeTransfer::Log log;
  Upload upload(fakeTransfers(log));
  EXPECT_EQ(errorOf(upload), "UP_FTP.Upload -2147193504 A Download Server property has not beeen specified.");
  fillIn(upload);
  upload.setServer("ftp://10.0.0.1");
  upload.setSourceFolder(R"(C:\Here)");
  upload.setTargetFolder("/there");
  upload.setInactivityLifetime(7);
  upload.Start();
  EXPECT_EQ(log, (FakeTransfer::Log{"idle 7", "prepare", "user me", "password secret", "host 10.0.0.1",
                                    "passive", "no window", "open", R"(upload C:\Here\ *.* /there/)"}));
  EXPECT_TRUE(upload.DirectoryExists("/there"));
  upload.CreateDirectory("/new");
  EXPECT_EQ(log.back(), "create /new");
}

TEST(Upload, HandsTheComponentsEventsOn) {
  struct Listener : TransferListener {
    void status(std::string_view text) override { heard.emplace_back(text); }
    void transferInfo(const TransferInfo& info) override { heard.push_back(info.file); }
    std::vector<std::string> heard;
  } listener;
  FakeTransfer::Log log;
  Upload upload(fakeTransfers(log), &listener);
  fillIn(upload);
  upload.Start();
  EXPECT_EQ(listener.heard, (std::vector<std::string>{"copying", "a file"}));
}

}  // namespace
}  // namespace tallywick::test
