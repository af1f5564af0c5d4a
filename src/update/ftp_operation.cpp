// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/ftp_operation.h"

#include "core/text.h"
#include "update/curl_address.h"
#include "update/transfer_errors.h"

namespace tallywick {

namespace {

/// Whether `address` is a server and nothing more: no folder, no user, no query.
bool isServerAddress(const std::string& address) {
  const CurlAddress parts(address);
  const std::string_view server = std::string_view(address).substr(std::string_view("ftp://").size());
  return parts.isValid() && server.find_first_of("/\\") == std::string_view::npos &&
         !parts.has(CURLUPART_USER) && !parts.has(CURLUPART_PASSWORD) && !parts.has(CURLUPART_QUERY) &&
         !parts.has(CURLUPART_FRAGMENT);
}

/// "ftp://" and the host, with or without a closing "/" in the setting.
std::string serverAddress(std::string_view host) {
  if (equalIgnoringCase(host.substr(0, 6), "ftp://")) host.remove_prefix(6);
  if (host.ends_with('/')) host.remove_suffix(1);
  std::string address = join("ftp://", host);
  if (!isServerAddress(address)) {
    throw transferError(TransferFault::address, noServerAddress);
  }
  return address;
}

/// `path` as it goes into an address: a server that takes it apart gets exactly these bytes back.
std::string addressPath(std::string_view path) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  constexpr std::string_view plain = "/:-._~";
  std::string text;
  const bool isAbsolute = path.starts_with('/');
  if (isAbsolute) {
    // The slash that begins a server's path is not the one that ends the server's address.
    text = "%2F";
    path.remove_prefix(1);
  }
  for (const char letter : path) {
    const auto code = static_cast<unsigned char>(letter);
    const bool isLetter = (code | 0x20U) >= 'a' && (code | 0x20U) <= 'z';
    if (isLetter || (code >= '0' && code <= '9') || plain.find(letter) != std::string_view::npos) {
      text += letter;
    } else {
      text += '%';
      text += digits[code >> 4U];
      text += digits[code & 0xFU];
    }
  }
  return text;
}

}  // namespace

FtpOperation::FtpOperation(const FtpSession& session, std::string_view path)
    : CurlOperation(join(serverAddress(session.host), "/", addressPath(path)), session.times) {
  // The folder goes out in one command, as it is written.
  set(CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_SINGLECWD});
  // Nobody between here and the server gets to see the login.
  set(CURLOPT_PROXY, "");
  set(CURLOPT_USERNAME, session.userName.c_str());
  set(CURLOPT_PASSWORD, session.password.c_str());
  set(CURLOPT_ACCEPTTIMEOUT_MS, static_cast<long>(session.times.answer.count()));
  if (!session.passive) set(CURLOPT_FTPPORT, "-");
  if (session.tlsRequired) set(CURLOPT_USE_SSL, long{CURLUSESSL_ALL});
  if (!session.certificates.empty()) set(CURLOPT_CAINFO, session.certificates.c_str());
  if (!session.addresses.empty()) append(CURLOPT_RESOLVE, session.addresses);
}

}  // namespace tallywick
