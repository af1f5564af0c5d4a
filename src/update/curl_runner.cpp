// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/curl_runner.h"

#include "update/transfer_errors.h"

#include <exception>
#include <new>
#include <utility>

namespace tallywick {

namespace {

using Steady = std::chrono::steady_clock;

constexpr std::chrono::milliseconds lookEvery(40);

[[noreturn]] void failToStart() {
  throw transferError(TransferFault::protocol, "the transfer library cannot be started");
}

void requireMulti(CURLMcode result) {
  if (result == CURLM_OUT_OF_MEMORY) throw std::bad_alloc();
  if (result != CURLM_OK) {
    throw transferError(TransferFault::protocol, "the transfer library cannot go on");
  }
}

/// A share of TLS sessions, the first thing that is asked of the library.
CURLSH* newShare() {
  static const CURLcode prepared = curl_global_init(CURL_GLOBAL_DEFAULT);
  CURLSH* share = prepared == CURLE_OK ? curl_share_init() : nullptr;
  if (share == nullptr) failToStart();
  if (curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION) != CURLSHE_OK) {
    curl_share_cleanup(share);
    failToStart();
  }
  return share;
}

/// An operation among those that the library works on. One that goes before its end takes its connection with
/// it, and the library does not wait for a word of the server's.
struct Attached {
  Attached(CURLM* multi, CURL* handle) : multi_(multi), handle_(handle) {
    requireMulti(curl_multi_add_handle(multi_, handle_));
  }
  ~Attached() { curl_multi_remove_handle(multi_, handle_); }
  Attached(const Attached&) = delete;
  Attached& operator=(const Attached&) = delete;

 private:
  CURLM* multi_;
  CURL* handle_;
};

/// Keeps an eye on an operation's limits and on the watch. The library asks it too: at the end of a file it
/// waits for the server's closing word before it returns.
class Supervision {
 public:
  /// `look` may raise an error, which ends the operation.
  Supervision(CurlOperation& operation, Steady::time_point deadline, std::function<void()> look)
      : operation_(operation), deadline_(deadline), look_(std::move(look)) {
    operation.set(CURLOPT_XFERINFOFUNCTION, askedByLibrary);
    operation.set(CURLOPT_XFERINFODATA, this);
    operation.set(CURLOPT_NOPROGRESS, 0L);
  }
  ~Supervision() { curl_easy_setopt(operation_.handle(), CURLOPT_NOPROGRESS, 1L); }
  Supervision(const Supervision&) = delete;
  Supervision& operator=(const Supervision&) = delete;

  /// Looks around and at the limits. False once a limit has been passed; the operation then knows which.
  bool supervise() {
    if (failure_) std::rethrow_exception(failure_);
    lookAround();
    const Steady::time_point now = Steady::now();
    if (operation_.signsOfLife() != std::exchange(signs_, operation_.signsOfLife())) lastSign_ = now;
    if (operation_.passedLimit() == PassedLimit::none) operation_.setPassedLimit(limitPassedAt(now));
    return operation_.passedLimit() == PassedLimit::none;
  }

 private:
  void lookAround() {
    const Steady::time_point before = Steady::now();
    if (before - lastLook_ < lookEvery) return;
    look_();
    lastLook_ = Steady::now();
    // The server is not to blame for the time that a window takes.
    lastSign_ += lastLook_ - before;
    spanStart_ += lastLook_ - before;
  }

  PassedLimit limitPassedAt(Steady::time_point now) {
    if (now > deadline_) return PassedLimit::folder;
    if (now - lastSign_ > patience()) return PassedLimit::silence;
    return endSpan(now) ? PassedLimit::rate : PassedLimit::none;
  }

  std::chrono::milliseconds patience() const {
    if (!operation_.isConnected()) return operation_.times().connect;
    return operation_.bytesDone() == 0 ? operation_.times().answer : operation_.times().stall;
  }

  /// Begins the next span where one ends; true where too little came in it. The first one begins with the
  /// first byte.
  bool endSpan(Steady::time_point now) {
    const std::uint64_t bytes = operation_.bytesDone();
    if (bytes == 0) spanStart_ = now;
    if (now - spanStart_ < operation_.times().rateSpan) return false;
    const std::chrono::duration<double> seconds = now - std::exchange(spanStart_, now);
    const auto came = static_cast<double>(bytes - std::exchange(spanBytes_, bytes));
    return came < static_cast<double>(operation_.times().slowest) * seconds.count();
  }

  /// Another answer than 0 ends the operation.
  static int askedByLibrary(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    auto& supervision = *static_cast<Supervision*>(self);
    try {
      return supervision.supervise() ? 0 : 1;
    } catch (...) {
      supervision.failure_ = std::current_exception();
      return 1;
    }
  }

  CurlOperation& operation_;
  Steady::time_point deadline_;
  std::function<void()> look_;
  Steady::time_point lastLook_;
  Steady::time_point lastSign_ = Steady::now();
  std::uint64_t signs_ = 0;
  Steady::time_point spanStart_ = Steady::now();
  std::uint64_t spanBytes_ = 0;
  /// From looking around; it must not pass through the library.
  std::exception_ptr failure_;
};

/// Goes on as far as it is possible without waiting; whether there is more to do.
bool perform(CURLM* multi) {
  int running = 0;
  requireMulti(curl_multi_perform(multi, &running));
  return running != 0;
}

void waitForServer(CURLM* multi) {
  requireMulti(curl_multi_poll(multi, nullptr, 0, static_cast<int>(lookEvery.count()), nullptr));
}

bool leavesConnection(const CurlOperation& operation) {
  curl_socket_t socket = CURL_SOCKET_BAD;
  curl_easy_getinfo(operation.handle(), CURLINFO_ACTIVESOCKET, &socket);
  return socket != CURL_SOCKET_BAD;
}

}  // namespace

CurlRunner::CurlRunner(TransferWatch* watch) : watch_(watch), sessions_(newShare()) {}

void CurlRunner::begin(const TransferTimes& times) {
  progress_ = {};
  deadline_ = Steady::now() + times.folder;
}

CURLcode CurlRunner::run(CurlOperation& operation, const std::function<void()>& flowed) {
  operation.set(CURLOPT_SHARE, sessions_.get());
  connected_ = false;
  Supervision supervision(operation, deadline_, [this] { look(); });
  const Attached attached(multi(), operation.handle());
  std::uint64_t bytes = 0;
  bool wasConnected = false;
  while (true) {
    const bool isRunning = perform(multi());
    if (operation.bytesDone() != std::exchange(bytes, operation.bytesDone())) flowed();
    if (operation.isConnected() && !std::exchange(wasConnected, true)) operation.allowLogin();
    const bool goesOn = supervision.supervise();
    if (!isRunning) {
      connected_ = leavesConnection(operation);
      return resultOf(operation);
    }
    if (!goesOn) return CURLE_OPERATION_TIMEDOUT;
    waitForServer(multi());
  }
}

void CurlRunner::look() {
  if (watch_ == nullptr) return;
  watch_->progress(progress_);
  if (watch_->cancelled()) throw TransferCancelled();
}

void CurlRunner::leave(CurlOperation& farewell) {
  connected_ = false;
  Supervision supervision(farewell, Steady::time_point::max(), [this] { look(); });
  const Attached attached(multi(), farewell.handle());
  while (perform(multi()) && !farewell.hasAnswer() && supervision.supervise()) waitForServer(multi());
}

CURLM* CurlRunner::multi() {
  if (!multi_) multi_.reset(curl_multi_init());
  if (!multi_) throw std::bad_alloc();
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
