// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/folder_transfer.h"

#include "core/text.h"
#include "update/transfer_errors.h"

#include <array>

namespace tallywick {

namespace {

constexpr int firstCode = 28000;

/// In the order in which they are checked; the code of each is the first code plus its place.
constexpr std::array<std::string_view, 5> checkedProperties = {"Server", "Login", "Password", "SourceFolder",
                                                               "TargetFolder"};

std::string without(std::string_view piece, std::string text) {
  for (std::size_t at = text.find(piece); at != std::string::npos; at = text.find(piece, at)) {
    text.erase(at, piece.size());
  }
  return text;
}

}  // namespace

RuntimeError transferClassError(int code, std::string_view source) {
  const auto number = static_cast<std::int32_t>(applicationErrors + static_cast<std::uint32_t>(code));
  const auto place = static_cast<std::size_t>(code - firstCode);
  std::string text = "An unrecognized error was encountered.";
  if (place < checkedProperties.size()) {
    // Kept slip: "beeen", and "Download" for an upload too.
    text = join("A Download ", checkedProperties[place], " property has not beeen specified.");
  }
  return RuntimeError(number, std::move(text), {}, std::string(source));
}

FolderTransfer::FolderTransfer(const Kind& kind, const TransferFactory& newTransfer)
    : kind_(kind), component_(newTransfer()) {}

void FolderTransfer::check(std::size_t count) const {
  const std::array<const std::string*, allProperties> values = {&server_, &login_, &password_, &sourceFolder_,
                                                                &targetFolder_};
  for (std::size_t i = 0; i < count; ++i) {
    if (values[i]->empty()) throw transferClassError(firstCode + static_cast<int>(i), kind_.source);
  }
}

void FolderTransfer::openSession() {
  component_->prepare();
  component_->setUserName(login_);
  component_->setPassword(password_);
  component_->setHost(without(kind_.scheme, server_));
  component_->setPassive(passive_);
  component_->setProgressWindow(showTransferWindow_);
  component_->openSession();
}

Download::Download(const TransferFactory& newTransfer, TransferListener* listener)
    // Kept slip: the five letters of the scheme.
    : FolderTransfer({"ftp.Download", "fttp://"}, newTransfer) {
  component().setListener(listener);
}

void Download::Start() {
  check(allProperties);
  openSession();
  component().download(closedWith('/', SourceFolder()), "*.*", closedWith('\\', TargetFolder()));
}

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

std::string closedWith(char slash, std::string_view folder) {
  std::string closed(folder);
  if (!closed.ends_with(slash)) closed += slash;
  return closed;
}

}  // namespace tallywick
