// SPDX-License-Identifier: GPL-3.0-or-later
// One operation of the transfer library on a fresh handle, for every protocol. Known to this folder alone.
#pragma once

#include "update/transfer_limits.h"

#include <cstdint>
#include <curl/curl.h>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace tallywick {

/// Which of the limits that the library does not watch an operation has passed.
enum class PassedLimit : std::uint8_t { none, silence, rate, folder, size };

/// Raises an error where the library does not take an option: nothing is sent without it.
void checkOption(CURLoption option, CURLcode result);

/// `file`, or where that is empty the file that the environment's SSL_CERT_FILE names; empty for the system's
/// own.
std::string trustedCertificates(const std::string& file);

/// What comes down is kept in memory.
class CurlOperation {
 public:
  /// `address` is a URL of any kind, which goes out as it is written.
  CurlOperation(const std::string& address, const TransferTimes& times);
  CurlOperation(const CurlOperation&) = delete;
  CurlOperation& operator=(const CurlOperation&) = delete;

  /// Sets an option of the library, or raises an error.
  template <typename Value>
  void set(CURLoption option, Value value) {
    checkOption(option, curl_easy_setopt(handle_.get(), option, value));
  }
  /// Puts a line behind those that an option with a list already has.
  void append(CURLoption option, const std::string& line);
  void setLimit(std::uint64_t bytes) { limit_ = bytes; }
  /// From now on the limit for connecting covers the login, too, which belongs to it in the library's eyes.
  void allowLogin();

  CURL* handle() const { return handle_.get(); }
  const TransferTimes& times() const { return times_; }
  const std::string& received() const { return received_; }
  std::uint64_t bytesDone() const { return received_.size() + sent_; }
  /// The number of the server's last answer.
  long responseCode() const;
  /// The length that the server announced; negative where it announced none.
  std::int64_t announcedLength() const;
  PassedLimit passedLimit() const { return passedLimit_; }
  void setPassedLimit(PassedLimit limit) { passedLimit_ = limit; }
  bool isConnected() const;
  /// Whether the server has said anything.
  bool hasAnswer() const { return bytesDone() + lines_ != 0; }
  /// Changes whenever the server shows that it is there.
  std::uint64_t signsOfLife() const { return bytesDone() + lines_ + (isConnected() ? 1 : 0); }

 protected:
  ~CurlOperation() = default;
  /// Gets each line of the server's answers as it comes, with its end.
  std::function<void(std::string_view line)> onLine;
  /// Sends `bytes`, which outlive the operation.
  void setUpload(std::string_view bytes);

 private:
  static std::size_t takeBytes(char* bytes, std::size_t one, std::size_t count, void* self);
  static std::size_t giveBytes(char* bytes, std::size_t one, std::size_t count, void* self);
  static std::size_t takeLine(char* bytes, std::size_t one, std::size_t count, void* self);

  struct Close {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
  };
  struct CloseList {
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
  };
  TransferTimes times_;
  std::string received_;
  std::string_view unsent_;
  std::uint64_t sent_ = 0;
  std::uint64_t lines_ = 0;
  std::uint64_t limit_;
  PassedLimit passedLimit_ = PassedLimit::none;
  std::map<CURLoption, std::unique_ptr<curl_slist, CloseList>> lists_;
  /// The last member: the library may still call back while it closes.
  std::unique_ptr<CURL, Close> handle_;
};

}  // namespace tallywick
