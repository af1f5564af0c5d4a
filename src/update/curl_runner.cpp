#include "update/curl_runner.h"

#include "update/transfer_errors.h"

#include <chrono>

namespace tallywick {

namespace {

using Steady = std::chrono::steady_clock;

constexpr std::chrono::milliseconds paintEvery(40);

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

/// An operation among those that the library works on.
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

}  // namespace

CurlRunner::CurlRunner(Screen& screen) : screen_(screen), sessions_(newShare()) {}

CURLcode CurlRunner::run(CurlOperation& operation, const TransferTimes& times,
                         const std::function<void()>& progress) {
  if (!multi_) multi_.reset(curl_multi_init());
  operation.set(CURLOPT_SHARE, sessions_.get());
  const Attached attached(multi_.get(), operation.handle());
  Steady::time_point lastSign = Steady::now();
  Steady::time_point lastPaint;
  std::uint64_t signs = 0;
  int running = 1;
  while (true) {
    if (curl_multi_perform(multi_.get(), &running) != CURLM_OK) return CURLE_FAILED_INIT;
    const Steady::time_point now = Steady::now();
    if (operation.signsOfLife() != signs) {
      signs = operation.signsOfLife();
      lastSign = now;
      if (operation.bytesDone() != 0) progress();
    }
    if (now - lastPaint >= paintEvery) {
      lastPaint = now;
      screen_.refresh();
    }
    if (running == 0) return resultOf(operation);
    if (now - lastSign > patienceWith(operation, times)) return CURLE_OPERATION_TIMEDOUT;
    curl_multi_poll(multi_.get(), nullptr, 0, static_cast<int>(paintEvery.count()), nullptr);
  }
}

void CurlRunner::close() {
  multi_.reset();
}

CURLcode CurlRunner::resultOf(const CurlOperation& operation) const {
  int left = 0;
  while (const CURLMsg* message = curl_multi_info_read(multi_.get(), &left)) {
    if (message->msg == CURLMSG_DONE && message->easy_handle == operation.handle()) {
      return message->data.result;
    }
  }
  return CURLE_RECV_ERROR;
}

}  // namespace tallywick
