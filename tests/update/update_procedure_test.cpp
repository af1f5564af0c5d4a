// SPDX-License-Identifier: GPL-3.0-or-later
// The update of both games and of one: what it shows, in which order it works, and that it ends where it
// fails.
#include "update/update_procedure.h"

#include "core/clock.h"
#include "core/runtime_error.h"
#include "support/fake_transfer.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"
#include "update/transfer_status.h"

#include <gtest/gtest.h>

namespace tallywick::test {
namespace {

using Icon = MessageBox::Icon;

constexpr std::string_view pwrHere = R"(C:\Program Files\Tallywick Software\Tallywick\QzrNumbers\QZR6PWR\)";
constexpr std::string_view megHere = R"(C:\Program Files\Tallywick Software\Tallywick\QzrNumbers\QZR6MEG\)";

/// Notes each step of the update in `log`, with the bar's value and whether it is seen.
class Update : public testing::Test, public MessageBoxes, public Screen, public ProgramStarter {
 protected:
  Update() {
    scratch.write("PWF.TXT", "\"the password\",\"never read\"\r\n");
    scratch.write("PWF2.TXT", "the login\r\n");
    for (const std::string game : {"PWR", "MEG"}) {
      scratch.write("QzrNumbers/QZR6" + game + "/QZRNUM6.Dat", records({"11,21,2026,1,2,3,4,5,6,x"}));
      scratch.write("QzrNumbers/QZR6" + game + "/QZR6" + game + "1.Ply", "");
    }
  }

  MessageBox::Answer show(const MessageBox& box) override {
    EXPECT_EQ(box.title, "Tallywick Software");
    const char* icons[] = {"", "! ", "i ", "? "};
    note("box " + std::string(icons[static_cast<int>(box.icon)]) + box.text);
    return MessageBox::Answer::ok;
  }
  void refresh() override {}
  void start(std::string_view program, std::string_view) override {
    note("sort " + std::string(program.substr(program.size() - 19, 7)));
  }
  void note(const std::string& what) {
    const ProgressBar& bar = page.ProgressBar1;
    log.push_back(what + (bar.visible() ? " [" + std::to_string(bar.value()) + "]" : ""));
  }

  UpdateSurroundings surroundings() {
    return {page,
            mnuPowerBall2,
            mnuMegaMillions2,
            scratch.folder(),
            clock,
            *this,
            *this,
            *this,
            [this](Game) { return server; },
            newTransfer,
            [this] { note("pictures"); }};
  }
  template <typename Handler>
  std::int32_t run(Handler handler) {
    UpdateSurroundings update = surroundings();
    try {
      handler(update);
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  ScratchFolder scratch;
  Form form{"Form1"};
  UpdatePage page{form};
  MenuEntry mnuPowerBall2{form, "mnuPowerBall2", "1"};
  MenuEntry mnuMegaMillions2{form, "mnuMegaMillions2", "2"};
  FixedClock clock{"11-21-2026", "07:00:01"};
  std::string server = "10.0.0.1";
  FakeTransfer::Log transfers;
  TransferFactory newTransfer =
      fakeTransfers(transfers, [this](std::string_view from) { note("copy " + std::string(from)); });
  std::vector<std::string> log;
};

TEST_F(Update, OfBothGamesGoesThroughItsSteps) {
  EXPECT_EQ(run(Command2_Click), 0);
  EXPECT_EQ(log, (std::vector<std::string>{
                     "box The Tallywick Software is updating,\r\nPlease allow the updates to complete...",
                     "copy /D:/QZR/Z1-Pwr/Qzr6/ [0]", "copy /D:/QZR/Z2-Meg/Qzr6/ [50]", "sort QZR6PWR [100]",
                     "sort QZR6MEG [100]", "box i The updates for The Tallywick Software is completed",
                     "pictures"}));
  EXPECT_EQ(transfers[1], "user the login");
  EXPECT_EQ(transfers[2], "password the password");
  EXPECT_EQ(transfers[3], "host 10.0.0.1");
  EXPECT_EQ(transfers.back(), join("download /D:/QZR/Z2-Meg/Qzr6/ *.* ", megHere));
  EXPECT_FALSE(page.Command2.visible());
  EXPECT_FALSE(mnuPowerBall2.enabled());
  EXPECT_FALSE(mnuMegaMillions2.enabled());
}

TEST_F(Update, OfOneGameGoesThroughItsSteps) {
  EXPECT_EQ(run(mnuMegaMillions2_Click), 0);
  EXPECT_EQ(log,
            (std::vector<std::string>{"box Updating The Tallywick Software Mega Millions game",
                                      "copy /D:/QZR/Z2-MEG/QZR6/ [1]", "sort QZR6MEG [100]", "pictures [100]",
                                      "box i The updates for The Tallywick Software is completed"}));
  EXPECT_EQ(transfers.back(), join("download /D:/QZR/Z2-MEG/QZR6/ *.* ", megHere));
  EXPECT_FALSE(page.Command2.visible());
  EXPECT_TRUE(mnuPowerBall2.enabled());
  EXPECT_FALSE(mnuMegaMillions2.enabled());
  log.clear();
  EXPECT_EQ(run(mnuPowerBall2_Click), 0);
  EXPECT_EQ(log.front(), "box Updating The Tallywick Software PowerBall game");
  EXPECT_EQ(transfers.back(), join("download /D:/QZR/Z1-PWR/QZR6/ *.* ", pwrHere));
}

TEST_F(Update, EndsWhereItFails) {
  server.clear();
  EXPECT_EQ(run(Command2_Click), -2147193504) << "no server is set";
  scratch.write("PWF.TXT", "");
  EXPECT_EQ(run(mnuPowerBall2_Click), 62);
  std::filesystem::remove(scratch.root() / "PWF2.TXT");
  scratch.write("PWF.TXT", "x");
  EXPECT_EQ(run(mnuPowerBall2_Click), 53);
  EXPECT_TRUE(transfers.empty());
}

TEST_F(Update, ThatIsCancelledLetsTheUserUpdateAgain) {
  bool first = true;
  newTransfer = fakeTransfers(transfers, [&](std::string_view) {
    if (!std::exchange(first, false)) throw TransferCancelled();
  });
  mnuMegaMillions2.setEnabled(false);
  EXPECT_THROW(run(Command2_Click), TransferCancelled) << "in the second game";
  EXPECT_THROW(run(mnuPowerBall2_Click), TransferCancelled);
  EXPECT_EQ(log, (std::vector<std::string>{
                     "box The Tallywick Software is updating,\r\nPlease allow the updates to complete...",
                     "box Updating The Tallywick Software PowerBall game"}));
  EXPECT_EQ(page.StatusBar1.panels()[0], "The update was cancelled");
  EXPECT_TRUE(page.Command2.visible() && mnuPowerBall2.enabled());
  EXPECT_FALSE(mnuMegaMillions2.enabled()) << "it was disabled before";
  EXPECT_FALSE(page.ProgressBar1.visible());
}

TEST_F(Update, TellsFileAndBytesInTheStatusBar) {
  TransferStatus status(page.StatusBar1);
  status.transferInfo({"QZRNUM6.Dat", 1234567, 22345678});
  EXPECT_EQ(page.StatusBar1.panels()[0], "QZRNUM6.Dat: 1,234,567 of 22,345,678 bytes");
  status.transferInfo({"a", 999, 0});
  EXPECT_EQ(page.StatusBar1.panels()[0], "a: 999 bytes");
}

}  // namespace
}  // namespace tallywick::test
