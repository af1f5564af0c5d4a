// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/curl_operation.h"

#include "core/text.h"
#include "update/transfer_errors.h"

#include <algorithm>
#include <chrono>
#include <new>

namespace tallywick {

namespace {

/// A folder's listing beyond this is none that this program asks for.
constexpr std::uint64_t largestAnswer = std::uint64_t{4} << 20U;

/// A transfer slower than this many bytes a second counts as stalled.
constexpr long slowest = 16;

/// The greeting, AUTH, USER, PASS, PBSZ, PROT, PWD and SYST: to the library all of them are connecting. Each
/// answer has a limit of its own, that of all keeps a server from dribbling a greeting without end.
constexpr int loginAnswers = 8;

long milliseconds(std::chrono::milliseconds time) {
  return static_cast<long>(time.count());
}

long secondsUpTo(std::chrono::milliseconds time) {
  return static_cast<long>(std::chrono::ceil<std::chrono::seconds>(time).count());
}

struct AddressParts {
  AddressParts() : url(curl_url()) {}
  ~AddressParts() { curl_url_cleanup(url); }
  AddressParts(const AddressParts&) = delete;
  AddressParts& operator=(const AddressParts&) = delete;

  bool has(CURLUPart part) const {
    char* text = nullptr;
    const bool found = curl_url_get(url, part, &text, 0) == CURLUE_OK;
    curl_free(text);
    return found;
  }

  CURLU* url;
};

/// Whether `address` is a server and nothing more: no folder, no user, no query.
bool isServerAddress(const std::string& address) {
  const AddressParts parts;
  if (curl_url_set(parts.url, CURLUPART_URL, address.c_str(), 0) != CURLUE_OK) return false;
  const std::string_view server = std::string_view(address).substr(std::string_view("ftp://").size());
  return server.find_first_of("/\\") == std::string_view::npos && !parts.has(CURLUPART_USER) &&
         !parts.has(CURLUPART_PASSWORD) && !parts.has(CURLUPART_QUERY) && !parts.has(CURLUPART_FRAGMENT);
}

/// "ftp://" and the host, with or without a closing "/" in the setting.
std::string serverAddress(std::string_view host) {
  if (equalIgnoringCase(host.substr(0, 6), "ftp://")) host.remove_prefix(6);
  if (host.ends_with('/')) host.remove_suffix(1);
  std::string address = join("ftp://", host);
  if (!isServerAddress(address)) {
    throw transferError(TransferFault::address, "the update server's address is none");
  }
  return address;
}

}  // namespace

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

CurlOperation::CurlOperation(const CurlSession& session, std::string_view path) : limit_(largestAnswer) {
  handle_.reset(curl_easy_init());
  if (!handle_) throw std::bad_alloc();
  setAddress(session, path);
  setManners(session);
}

void CurlOperation::setAddress(const CurlSession& session, std::string_view path) {
  const std::string address = join(serverAddress(session.host), "/", addressPath(path));
  set(CURLOPT_URL, address.c_str());
  set(CURLOPT_PATH_AS_IS, 1L);
  // The folder goes out in one command, as it is written.
  set(CURLOPT_FTP_FILEMETHOD, long{CURLFTPMETHOD_SINGLECWD});
  set(CURLOPT_USERNAME, session.userName.c_str());
  set(CURLOPT_PASSWORD, session.password.c_str());
  // Nobody between here and the server gets to see the login.
  set(CURLOPT_PROXY, "");
  if (!session.passive) set(CURLOPT_FTPPORT, "-");
  if (session.tlsRequired) set(CURLOPT_USE_SSL, long{CURLUSESSL_ALL});
  if (!session.certificates.empty()) set(CURLOPT_CAINFO, session.certificates.c_str());
}

void CurlOperation::setManners(const CurlSession& session) {
  set(CURLOPT_NOSIGNAL, 1L);
  set(CURLOPT_CONNECTTIMEOUT_MS, milliseconds(session.times.connect + loginAnswers * session.times.answer));
  set(CURLOPT_SERVER_RESPONSE_TIMEOUT, secondsUpTo(std::max(session.times.answer, session.times.stall)));
  set(CURLOPT_ACCEPTTIMEOUT_MS, milliseconds(session.times.answer));
  set(CURLOPT_LOW_SPEED_LIMIT, slowest);
  set(CURLOPT_LOW_SPEED_TIME, secondsUpTo(session.times.stall));
  set(CURLOPT_WRITEFUNCTION, takeBytes);
  set(CURLOPT_WRITEDATA, this);
  set(CURLOPT_HEADERFUNCTION, takeLine);
  set(CURLOPT_HEADERDATA, this);
}

void CurlOperation::giveCommand(const std::string& command) {
  curl_slist* const list = curl_slist_append(commands_.get(), command.c_str());
  if (list == nullptr) throw std::bad_alloc();
  // The list begins where it began, or is the first.
  static_cast<void>(commands_.release());
  commands_.reset(list);
  set(CURLOPT_QUOTE, list);
}

void CurlOperation::send(std::string_view bytes) {
  unsent_ = bytes;
  set(CURLOPT_UPLOAD, 1L);
  set(CURLOPT_INFILESIZE_LARGE, static_cast<curl_off_t>(bytes.size()));
  set(CURLOPT_READFUNCTION, giveBytes);
  set(CURLOPT_READDATA, this);
}

long CurlOperation::responseCode() const {
  long code = 0;
  curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &code);
  return code;
}

std::int64_t CurlOperation::toldLength() const {
  curl_off_t length = -1;
  curl_easy_getinfo(handle_.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
  return length;
}

bool CurlOperation::isConnected() const {
  long port = 0;
  curl_easy_getinfo(handle_.get(), CURLINFO_PRIMARY_PORT, &port);
  return port != 0;
}

std::size_t CurlOperation::takeBytes(char* bytes, std::size_t one, std::size_t count, void* self) {
  auto& operation = *static_cast<CurlOperation*>(self);
  const std::size_t size = one * count;
  operation.tooLong_ = size > operation.limit_ - operation.received_.size();
  if (operation.tooLong_) return 0;
  try {
    operation.received_.append(bytes, size);
  } catch (const std::bad_alloc&) {
    operation.tooLong_ = true;
    return 0;
  }
  return size;
}

std::size_t CurlOperation::giveBytes(char* bytes, std::size_t one, std::size_t count, void* self) {
  auto& operation = *static_cast<CurlOperation*>(self);
  const std::size_t size = operation.unsent_.copy(bytes, one * count);
  operation.unsent_.remove_prefix(size);
  operation.sent_ += size;
  return size;
}

std::size_t CurlOperation::takeLine(char*, std::size_t one, std::size_t count, void* self) {
  ++static_cast<CurlOperation*>(self)->lines_;
  return one * count;
}

}  // namespace tallywick
