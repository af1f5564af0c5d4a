// SPDX-License-Identifier: GPL-3.0-or-later
// The transfer classes: Download and Upload copy every file of a folder from and to a server.
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

/// What Download and Upload have in common: the properties, their check, and a transfer component of their
/// own.
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

/// Copies every file of a server folder into a local folder: SourceFolder is the server's, TargetFolder the
/// local one.
class Download : public FolderTransfer {
 public:
  /// `listener` hears of the transfer's progress.
  explicit Download(const TransferFactory& newTransfer, TransferListener* listener = nullptr);

  /// Raises the error of an empty property before anything is transferred; the component's errors pass
  /// through.
  void Start();
};

/// Copies every file of a local folder into a server folder, and tests for and creates server folders. The
/// program itself uploads nothing, and so this class alone calls the component's upload(). SourceFolder is
/// the local one, TargetFolder the server's.
class Upload : public FolderTransfer, private TransferListener {
 public:
  /// `listener` receives what the component's events say.
  explicit Upload(const TransferFactory& newTransfer, TransferListener* listener = nullptr);

  /// After so many idle seconds the component gives up; 0 leaves it to the component.
  int InactivityLifetime() const { return inactivityLifetime_; }
  void setInactivityLifetime(int seconds) { inactivityLifetime_ = seconds; }

  /// As Download::Start(), the other way.
  void Start();
  /// Whether the server folder `folder` exists.
  bool DirectoryExists(std::string_view folder);
  void CreateDirectory(std::string_view folder);

  /// The component's events.
  void mFTP_Status(std::string_view text);
  void mFTP_TransferInfo(const TransferInfo& info);

 private:
  void status(std::string_view text) override { mFTP_Status(text); }
  void transferInfo(const TransferInfo& info) override { mFTP_TransferInfo(info); }
  void connect();

  TransferListener* listener_;
  int inactivityLifetime_ = 0;
};

/// `folder` with `slash` at its end.
std::string closedWith(char slash, std::string_view folder);

}  // namespace tallywick
