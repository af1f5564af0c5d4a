// SPDX-License-Identifier: GPL-3.0-or-later
// One operation on an FTP server: a file, a listing, or a way to a folder.
#pragma once

#include "update/curl_operation.h"

#include <string>
#include <string_view>

namespace tallywick {

/// What every operation of a session needs.
struct FtpSession {
  std::string host;
  std::string userName;
  std::string password;
  bool passive = true;
  bool tlsRequired = false;
  std::string certificates;
  /// "host:port:address,address" in the place of what the host's name leads to; empty for that.
  std::string addresses;
  TransferTimes times;
};

class FtpOperation : public CurlOperation {
 public:
  /// `path` is a file, or a folder where it ends with "/"; an empty one is the folder in which a session
  /// begins. Error: the host is no server's address.
  FtpOperation(const FtpSession& session, std::string_view path);

  /// Without a transfer: only goes to the folder, or asks for the file's length.
  void goThereOnly() { set(CURLOPT_NOBODY, 1L); }
  /// Takes what comes until the server ends it, not only as many bytes as the server announced.
  void takeAllBytes() { set(CURLOPT_IGNORE_CONTENT_LENGTH, 1L); }
  /// Gives the server `command` before anything else. An answer that refuses is an error unless a "*" is
  /// before the command.
  void giveCommand(const std::string& command) { append(CURLOPT_QUOTE, command); }
  /// Sends `bytes`, which outlive the operation.
  void send(std::string_view bytes) { setUpload(bytes); }
};

}  // namespace tallywick
