// SPDX-License-Identifier: GPL-3.0-or-later
// One operation of the transfer library on a fresh handle. Known to the transfer component alone.
#pragma once

#include "update/curl_transfer.h"

#include <cstdint>
#include <curl/curl.h>
#include <memory>
#include <string>
#include <string_view>

namespace tallywick {

/// What every operation of a session is told.
struct CurlSession {
  std::string host;
  std::string userName;
  std::string password;
  bool passive = true;
  bool tlsRequired = false;
  std::string certificates;
  TransferTimes times;
};

/// `path` as it goes into an address: a server that takes it apart gets exactly these bytes back.
std::string addressPath(std::string_view path);

/// One fresh handle, set up for the session and the server path; what comes down is kept in memory.
class CurlOperation {
 public:
  /// `path` is a file, or a folder where it ends with "/"; an empty one is the folder in which a session
  /// begins. Error: the host is no server's address.
  CurlOperation(const CurlSession& session, std::string_view path);
  CurlOperation(const CurlOperation&) = delete;
  CurlOperation& operator=(const CurlOperation&) = delete;

  template <typename Value>
  void set(CURLoption option, Value value) {
    curl_easy_setopt(handle_.get(), option, value);
  }
  /// Without a transfer: only goes to the folder, or asks for the file's length.
  void goThereOnly() { set(CURLOPT_NOBODY, 1L); }
  /// Takes what comes until the server ends it, not only as many bytes as the server told.
  void takeAllBytes() { set(CURLOPT_IGNORE_CONTENT_LENGTH, 1L); }
  void setLimit(std::uint64_t bytes) { limit_ = bytes; }
  /// Gives the server `command` before anything else. An answer that refuses is an error unless a "*" stands
  /// before the command.
  void giveCommand(const std::string& command);
  /// Sends `bytes`, which outlive the operation.
  void send(std::string_view bytes);

  CURL* handle() const { return handle_.get(); }
  const std::string& received() const { return received_; }
  std::uint64_t bytesDone() const { return received_.size() + sent_; }
  /// The server's three digits to the last command.
  long responseCode() const;
  /// The length that the server told; negative where it told none.
  std::int64_t toldLength() const;
  bool isTooLong() const { return tooLong_; }
  /// Changes whenever the server shows that it is there.
  std::uint64_t signsOfLife() const { return bytesDone() + lines_; }
  bool isConnected() const;

 private:
  static std::size_t takeBytes(char* bytes, std::size_t one, std::size_t count, void* self);
  static std::size_t giveBytes(char* bytes, std::size_t one, std::size_t count, void* self);
  static std::size_t takeLine(char* bytes, std::size_t one, std::size_t count, void* self);
  void setAddress(const CurlSession& session, std::string_view path);
  void setManners(const CurlSession& session);

  struct Close {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
  };
  std::string received_;
  std::string_view unsent_;
  std::uint64_t sent_ = 0;
  std::uint64_t lines_ = 0;
  std::uint64_t limit_;
  bool tooLong_ = false;
  std::unique_ptr<curl_slist, void (*)(curl_slist*)> commands_{nullptr, curl_slist_free_all};
  /// The last member: the library may still call back while it closes.
  std::unique_ptr<CURL, Close> handle_;
};

}  // namespace tallywick
