// SPDX-License-Identifier: GPL-3.0-or-later
// What Download and Upload have in common: the properties, their check, and a transfer component of their
// own.
#pragma once

#include "core/runtime_error.h"
#include "update/transfer_component.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace tallywick {

/// The error that the transfer classes raise for `code`; a code that has no text of its own gets the text for
/// unknown errors. The number is on the application's error base.
RuntimeError transferClassError(int code, std::string_view source);

class FolderTransfer {
 public:
  FolderTransfer(const FolderTransfer&) = delete;
  FolderTransfer& operator=(const FolderTransfer&) = delete;

  const std::string& Server() const { return server_; }
  void setServer(std::string_view server) { server_ = server; }
  const std::string& Login() const { return login_; }
  void setLogin(std::string_view login) { login_ = login; }
  const std::string& Password() const { return password_; }
  void setPassword(std::string_view password) { password_ = password; }
  const std::string& SourceFolder() const { return sourceFolder_; }
  void setSourceFolder(std::string_view folder) { sourceFolder_ = folder; }
  const std::string& TargetFolder() const { return targetFolder_; }
  void setTargetFolder(std::string_view folder) { targetFolder_ = folder; }
  // Properties of the transfer classes that the program leaves as they are: so its progress window never
  // opens.
  bool Passive() const { return passive_; }
  void setPassive(bool passive) { passive_ = passive; }
  bool ShowTransferWindow() const { return showTransferWindow_; }
  void setShowTransferWindow(bool shown) { showTransferWindow_ = shown; }

 protected:
  /// What differs between the two classes.
  struct Kind {
    std::string_view source;
    /// Taken out of the server's address wherever it contains it.
    std::string_view scheme;
  };

  FolderTransfer(const Kind& kind, const TransferFactory& newTransfer);
  ~FolderTransfer() = default;

  TransferComponent& component() { return *component_; }

  /// Raises the error of the first empty property; the first `count` of Server, Login, Password, SourceFolder
  /// and TargetFolder are looked at.
  void check(std::size_t count) const;
  /// Hands the properties to the component and opens its session.
  void openSession();

  static constexpr std::size_t sessionProperties = 3;
  static constexpr std::size_t allProperties = 5;

 private:
  Kind kind_;
  std::unique_ptr<TransferComponent> component_;
  std::string server_;
  std::string login_;
  std::string password_;
  std::string sourceFolder_;
  std::string targetFolder_;
  bool passive_ = true;
  bool showTransferWindow_ = false;
};

/// `folder` with `slash` at its end.
std::string closedWith(char slash, std::string_view folder);

}  // namespace tallywick
