// SPDX-License-Identifier: GPL-3.0-or-later
// The loop that carries an operation of the transfer library out while the window stays painted.
#pragma once

#include "controls/surroundings.h"
#include "update/curl_operation.h"

#include <functional>
#include <memory>

namespace tallywick {

/// Carries operations out, one after the other; connections are kept between them. It outlives them all.
class CurlRunner {
 public:
  explicit CurlRunner(Screen& screen);

  /// Runs to the end; `progress` is called when bytes have flowed. A server that is silent for longer than
  /// `times` allow ends it with CURLE_OPERATION_TIMEDOUT.
  CURLcode run(CurlOperation& operation, const TransferTimes& times, const std::function<void()>& progress);
  /// Whether the last operation has left a connection.
  bool isConnected() const { return connected_; }
  /// Says `farewell` on that connection and closes it as soon as the server has answered or has been silent
  /// for a second.
  void leave(CurlOperation& farewell);

 private:
  CURLM* multi();
  CURLcode resultOf(const CurlOperation& operation) const;

  struct Close {
    void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
  };
  struct CloseShare {
    void operator()(CURLSH* handle) const { curl_share_cleanup(handle); }
  };
  Screen& screen_;
  /// Servers may want the TLS session of the commands again where a file goes over.
  std::unique_ptr<CURLSH, CloseShare> sessions_;
  std::unique_ptr<CURLM, Close> multi_;
  bool connected_ = false;
};

}  // namespace tallywick
