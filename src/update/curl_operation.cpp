// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/curl_operation.h"

#include "core/text.h"
#include "update/transfer_errors.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <new>

namespace tallywick {

namespace {

/// A folder's listing beyond this is none that this program asks for.
constexpr std::uint64_t largestAnswer = std::uint64_t{4} << 20U;

/// The greeting, AUTH, USER, PASS, PBSZ, PROT, PWD and SYST: to the library all of them are connecting. Each
/// answer has a limit of its own, that of all keeps a server from dribbling a greeting without end.
constexpr int loginAnswers = 8;

long milliseconds(std::chrono::milliseconds time) {
  return static_cast<long>(time.count());
}

long secondsUpTo(std::chrono::milliseconds time) {
  return static_cast<long>(std::chrono::ceil<std::chrono::seconds>(time).count());
}

}  // namespace

void checkOption(CURLoption option, CURLcode result) {
  if (result == CURLE_OK) return;
  if (result == CURLE_OUT_OF_MEMORY) throw std::bad_alloc();
  const curl_easyoption* known = curl_easy_option_by_id(option);
  throw transferError(TransferFault::protocol, join("the transfer library rejects the setting ",
                                                    known != nullptr ? known->name : "asked for"));
}

std::string trustedCertificates(const std::string& file) {
  const char* ofUser = std::getenv("SSL_CERT_FILE");
  return file.empty() && ofUser != nullptr ? ofUser : file;
}

CurlOperation::CurlOperation(const std::string& address, const TransferTimes& times)
    : times_(times), limit_(largestAnswer) {
  handle_.reset(curl_easy_init());
  if (!handle_) throw std::bad_alloc();
  set(CURLOPT_URL, address.c_str());
  set(CURLOPT_PATH_AS_IS, 1L);
  set(CURLOPT_NOSIGNAL, 1L);
  // The system's TLS of Windows takes a list of revoked certificates that cannot be had for a revoked
  // certificate, and an authority of one's own has no such list. Other kinds of TLS pass over the option.
  set(CURLOPT_SSL_OPTIONS, long{CURLSSLOPT_REVOKE_BEST_EFFORT});
  // Within it the library tries one address after the other, each for half of what is left.
  set(CURLOPT_CONNECTTIMEOUT_MS, milliseconds(times_.connect));
  set(CURLOPT_SERVER_RESPONSE_TIMEOUT, secondsUpTo(std::max(times_.answer, times_.stall)));
  set(CURLOPT_WRITEFUNCTION, takeBytes);
  set(CURLOPT_WRITEDATA, this);
  set(CURLOPT_HEADERFUNCTION, takeLine);
  set(CURLOPT_HEADERDATA, this);
}

void CurlOperation::append(CURLoption option, const std::string& line) {
  auto& kept = lists_[option];
  curl_slist* const list = curl_slist_append(kept.get(), line.c_str());
  if (list == nullptr) throw std::bad_alloc();
  // The list begins where it began, or is the first.
  static_cast<void>(kept.release());
  kept.reset(list);
  set(option, list);
}

void CurlOperation::allowLogin() {
  set(CURLOPT_CONNECTTIMEOUT_MS, milliseconds(times_.connect + loginAnswers * times_.answer));
}

void CurlOperation::setUpload(std::string_view bytes) {
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

std::int64_t CurlOperation::announcedLength() const {
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
  try {
    if (size <= operation.limit_ - operation.received_.size()) {
      operation.received_.append(bytes, size);
      return size;
    }
  } catch (const std::bad_alloc&) {
    // What the memory does not take is too large as well.
  }
  operation.passedLimit_ = PassedLimit::size;
  return 0;
}

std::size_t CurlOperation::giveBytes(char* bytes, std::size_t one, std::size_t count, void* self) {
  auto& operation = *static_cast<CurlOperation*>(self);
  const std::size_t size = operation.unsent_.copy(bytes, one * count);
  operation.unsent_.remove_prefix(size);
  operation.sent_ += size;
  return size;
}

std::size_t CurlOperation::takeLine(char* bytes, std::size_t one, std::size_t count, void* self) {
  auto& operation = *static_cast<CurlOperation*>(self);
  ++operation.lines_;
  try {
    if (operation.onLine) operation.onLine({bytes, one * count});
  } catch (const std::bad_alloc&) {
    operation.passedLimit_ = PassedLimit::size;
    return 0;
  }
  return one * count;
}

}  // namespace tallywick
