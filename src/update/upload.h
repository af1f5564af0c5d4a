// SPDX-License-Identifier: GPL-3.0-or-later
// Copies every file of a local folder into a server folder, and tests for and creates server folders. The
// other half of the transfer classes: the program itself uploads nothing, and so this class alone calls the
// component's upload().
#pragma once

#include "update/folder_transfer.h"

namespace tallywick {

/// SourceFolder is the local one, TargetFolder the server's.
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

}  // namespace tallywick
