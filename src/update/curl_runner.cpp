// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/curl_runner.h"

#include "update/transfer_errors.h"

#include <chrono>
#include <exception>
#include <utility>

namespace tallywick {

namespace {

using Steady = std::chrono::steady_clock;

constexpr std::chrono::milliseconds paintEvery(40);
constexpr std::chrono::milliseconds farewellTime(1'000);

/// A share of TLS sessions, the first thing that is asked of the library.
CURLSH* newShare() {
  static const CURLcode prepared = curl_global_init(CURL_GLOBAL_DEFAULT);
  CURLSH* share = prepared == CURLE_OK ? curl_share_init() : nullptr;
  if (share == nullptr) {
    throw transferError(TransferFault::protocol, "the transfer library cannot be started");
  }
  curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION);
  return share;
}

/// An operation among those that the library works on. One that goes before its end takes its connection with
/// it, and the library does not wait for a word of the server's.
struct Attached {
  Attached(CURLM* multi, CURL* handle) : multi_(multi), handle_(handle) {
    curl_multi_add_handle(multi_, handle_);
  }
  ~Attached() { curl_multi_remove_handle(multi_, handle_); }
  Attached(const Attached&) = delete;
  Attached& operator=(const Attached&) = delete;

 private:
  CURLM* multi_;
  CURL* handle_;
};

std::chrono::milliseconds patienceWith(const CurlOperation& operation, const TransferTimes& times) {
  if (!operation.isConnected()) return times.connect;
  return operation.bytesDone() == 0 ? times.answer : times.stall;
}

/// Keeps the window painted during an operation, and an eye on the server. The library asks it too: at the
/// end of a file it waits for the server's closing word before it returns.
class Watch {
 public:
  Watch(CurlOperation& operation, const TransferTimes& times, Screen& screen)
      : operation_(operation), times_(times), screen_(screen) {
    operation.set(CURLOPT_XFERINFOFUNCTION, askedByLibrary);
    operation.set(CURLOPT_XFERINFODATA, this);
    operation.set(CURLOPT_NOPROGRESS, 0L);
  }
  ~Watch() { operation_.set(CURLOPT_NOPROGRESS, 1L); }
  Watch(const Watch&) = delete;
  Watch& operator=(const Watch&) = delete;

  /// False once the server has been silent for too long.
  bool goesOn() {
    if (failure_) std::rethrow_exception(failure_);
    const Steady::time_point now = Steady::now();
    if (operation_.signsOfLife() != std::exchange(signs_, operation_.signsOfLife())) lastSign_ = now;
    if (now - lastPaint_ >= paintEvery) {
      lastPaint_ = now;
      screen_.refresh();
    }
    return now - lastSign_ <= patienceWith(operation_, times_);
  }

 private:
  /// Another answer than 0 ends the operation.
  static int askedByLibrary(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    auto& watch = *static_cast<Watch*>(self);
    try {
      return watch.goesOn() ? 0 : 1;
    } catch (...) {
      watch.failure_ = std::current_exception();
      return 1;
    }
  }

  CurlOperation& operation_;
  const TransferTimes& times_;
  Screen& screen_;
  Steady::time_point lastSign_ = Steady::now();
  Steady::time_point lastPaint_;
  std::uint64_t signs_ = 0;
  /// From painting; it must not pass through the library.
  std::exception_ptr failure_;
};

/// Goes on as far as it is possible without waiting; whether there is more to do.
bool perform(CURLM* multi) {
  int running = 0;
  if (curl_multi_perform(multi, &running) != CURLM_OK) {
    throw transferError(TransferFault::protocol, "the transfer library cannot go on");
  }
  return running != 0;
}

void waitForServer(CURLM* multi) {
  curl_multi_poll(multi, nullptr, 0, static_cast<int>(paintEvery.count()), nullptr);
}

bool leavesConnection(const CurlOperation& operation) {
  curl_socket_t socket = CURL_SOCKET_BAD;
  curl_easy_getinfo(operation.handle(), CURLINFO_ACTIVESOCKET, &socket);
  return socket != CURL_SOCKET_BAD;
}

}  // namespace

CurlRunner::CurlRunner(Screen& screen) : screen_(screen), sessions_(newShare()) {}

CURLcode CurlRunner::run(CurlOperation& operation, const TransferTimes& times,
                         const std::function<void()>& progress) {
  operation.set(CURLOPT_SHARE, sessions_.get());
  connected_ = false;
  Watch watch(operation, times, screen_);
  const Attached attached(multi(), operation.handle());
  std::uint64_t bytes = 0;
  while (true) {
    const bool isRunning = perform(multi());
    if (operation.bytesDone() != std::exchange(bytes, operation.bytesDone())) progress();
    const bool goesOn = watch.goesOn();
    if (!isRunning) {
      connected_ = leavesConnection(operation);
      return resultOf(operation);
    }
    if (!goesOn) return CURLE_OPERATION_TIMEDOUT;
    waitForServer(multi());
  }
}

void CurlRunner::leave(CurlOperation& farewell) {
  connected_ = false;
  const TransferTimes times{farewellTime, farewellTime, farewellTime};
  Watch watch(farewell, times, screen_);
  const Attached attached(multi(), farewell.handle());
  while (perform(multi()) && farewell.signsOfLife() == 0 && watch.goesOn()) waitForServer(multi());
}

CURLM* CurlRunner::multi() {
  if (!multi_) multi_.reset(curl_multi_init());
  return multi_.get();
}

CURLcode CurlRunner::resultOf(const CurlOperation& operation) const {
  int left = 0;
  while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) {
    if (message->msg == CURLMSG_DONE && message->easy_handle == operation.handle()) {
      const CURLcode result = message->data.result;
      return result == CURLE_ABORTED_BY_CALLBACK ? CURLE_OPERATION_TIMEDOUT : result;
    }
  }
  return CURLE_RECV_ERROR;
}

}  // namespace tallywick
