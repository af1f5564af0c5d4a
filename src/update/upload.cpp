// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/upload.h"

namespace tallywick {

Upload::Upload(const TransferFactory& newTransfer, TransferListener* listener)
    : FolderTransfer({"UP_FTP.Upload", "ftp://"}, newTransfer), listener_(listener) {
  component().setListener(this);
}

void Upload::Start() {
  check(allProperties);
  connect();
  component().upload(closedWith('\\', SourceFolder()), "*.*", closedWith('/', TargetFolder()));
}

bool Upload::DirectoryExists(std::string_view folder) {
  check(sessionProperties);
  connect();
  return component().directoryExists(folder);
}

void Upload::CreateDirectory(std::string_view folder) {
  check(sessionProperties);
  connect();
  component().createDirectory(folder);
}

void Upload::mFTP_Status(std::string_view text) {
  if (listener_ != nullptr) listener_->status(text);
}

void Upload::mFTP_TransferInfo(const TransferInfo& info) {
  if (listener_ != nullptr) listener_->transferInfo(info);
}

void Upload::connect() {
  component().setInactivityLifetime(inactivityLifetime_);
  openSession();
}

}  // namespace tallywick
