// SPDX-License-Identifier: GPL-3.0-or-later
// A component of the real kind on a data folder of the test's own.
#pragma once

#include "core/clock.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "ftp_servers.h"
#include "support/scratch_folder.h"
#include "update/curl_transfer.h"

#include <algorithm>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace tallywick::test {

inline constexpr std::string_view pwrHere =
    R"(C:\Program Files\Tallywick Software\Tallywick\QzrNumbers\QZR6PWR\)";

/// Long enough on a loaded machine, and short for servers that never answer.
inline constexpr TransferTimes patientTimes = {std::chrono::seconds(15), std::chrono::seconds(15),
                                               std::chrono::seconds(15), std::chrono::seconds(15), 100};
inline constexpr TransferTimes hurriedTimes = {std::chrono::seconds(1), std::chrono::milliseconds(500),
                                               std::chrono::milliseconds(500), std::chrono::seconds(15), 100};

/// The limits for a misdeed that leads to `error`: only what must run into one gets it soon.
inline TransferTimes timesFor(std::string_view error) {
  if (error.find("too slow") == std::string_view::npos) {
    return error.starts_with("timed out") ? hurriedTimes : patientTimes;
  }
  TransferTimes times = patientTimes;
  times.rateSpan = std::chrono::milliseconds(600);
  return times;
}

class CountingWatch : public TransferWatch {
 public:
  void progress(const TransferProgress& soFar) override {
    ++looks;
    last = soFar;
    if (onLook) onLook();
  }
  bool cancelled() override { return looks >= cancelAt; }
  int looks = 0;
  int cancelAt = std::numeric_limits<int>::max();
  TransferProgress last;
  std::function<void()> onLook;
};

class RecordingListener : public TransferListener {
 public:
  void status(std::string_view text) override { statuses.emplace_back(text); }
  void transferInfo(const TransferInfo& info) override { infos.push_back(info); }
  std::vector<std::string> statuses;
  std::vector<TransferInfo> infos;
};

class RecordingWindow : public TransferWindow {
 public:
  void show(const TransferInfo&) override { open = true; }
  void close() override {
    closed += open ? 1 : 0;
    open = false;
  }
  bool open = false;
  int closed = 0;
};

class TransferTest : public testing::Test {
 protected:
  void SetUp() override {
    scratch.write("QzrNumbers/QZR6PWR/qzrnum6.dat", "old draws");
    scratch.write("QzrNumbers/QZR6PWR/QZR6PWR1.Ply", "old plays");
    before = scratch.snapshot();
  }

  std::unique_ptr<TransferComponent> connected(const std::string& host, bool passive = true) {
    auto component = newCurlTransfer(scratch.folder(), clock, settings, &watch, &window);
    component->setListener(&listener);
    component->prepare();
    component->setUserName(serverLogin);
    component->setPassword(serverPassword);
    component->setHost(host);
    component->setPassive(passive);
    component->openSession();
    return component;
  }

  /// Runs `action`; the error's text, "" without one. Neither login nor password may be in it.
  template <typename Action>
  std::string errorOf(Action action) {
    try {
      action();
    } catch (const RuntimeError& error) {
      const std::string all = join(error.what(), error.where(), error.boxText());
      EXPECT_EQ(all.find(serverPassword), std::string::npos) << all;
      EXPECT_EQ(all.find(serverLogin), std::string::npos) << all;
      EXPECT_TRUE(std::ranges::all_of(all, [](char letter) {
        return letter == '\n' || (letter >= ' ' && letter <= '~');
      })) << "bytes of the server's choice reach the terminal";
      return error.description();
    }
    return "";
  }

  std::string get(const std::string& name) { return scratch.read("QzrNumbers/QZR6PWR/" + name); }

  ScratchFolder scratch;
  FixedClock clock{"11-21-2026", "18:15:00"};
  CountingWatch watch;
  RecordingListener listener;
  RecordingWindow window;
  CurlTransferSettings settings;
  std::map<std::string, std::string> before;
};

}  // namespace tallywick::test
