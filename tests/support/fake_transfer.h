// SPDX-License-Identifier: GPL-3.0-or-later
// A transfer component that keeps what it is asked for and copies nothing.
#pragma once

#include "core/text.h"
#include "update/transfer_component.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tallywick::test {

class FakeTransfer : public TransferComponent {
 public:
  using Log = std::vector<std::string>;
  /// Takes the place of the copying of a folder.
  using Copy = std::function<void(std::string_view serverFolder)>;

  FakeTransfer(Log& log, Copy copy) : log_(log), copy_(std::move(copy)) {}

  void prepare() override { log_.push_back("prepare"); }
  void setUserName(std::string_view name) override { log_.push_back(join("user ", name)); }
  void setPassword(std::string_view password) override { log_.push_back(join("password ", password)); }
  void setHost(std::string_view host) override { log_.push_back(join("host ", host)); }
  void setPassive(bool passive) override { log_.push_back(passive ? "passive" : "active"); }
  void setProgressWindow(bool shown) override { log_.push_back(shown ? "window" : "no window"); }
  void setInactivityLifetime(int seconds) override { log_.push_back(join("idle ", std::to_string(seconds))); }
  void setListener(TransferListener* listener) override { listener_ = listener; }
  void openSession() override { log_.push_back("open"); }
  void download(std::string_view from, std::string_view wildcard, std::string_view to) override {
    copyFolder(join("download ", from, " ", wildcard, " ", to), from);
  }
  void upload(std::string_view from, std::string_view wildcard, std::string_view to) override {
    copyFolder(join("upload ", from, " ", wildcard, " ", to), to);
  }
  bool directoryExists(std::string_view folder) override {
    log_.push_back(join("exists ", folder));
    return true;
  }
  void createDirectory(std::string_view folder) override { log_.push_back(join("create ", folder)); }

 private:
  void copyFolder(std::string what, std::string_view serverFolder) {
    log_.push_back(std::move(what));
    if (listener_ != nullptr) {
      listener_->status("copying");
      listener_->transferInfo({"a file", 1234567, 0});
    }
    if (copy_) copy_(serverFolder);
  }

  Log& log_;
  Copy copy_;
  TransferListener* listener_ = nullptr;
};

/// Makes components that all write to `log`.
inline TransferFactory fakeTransfers(FakeTransfer::Log& log, const FakeTransfer::Copy& copy = {}) {
  return [&log, copy] { return std::make_unique<FakeTransfer>(log, copy); };
}

}  // namespace tallywick::test
