// SPDX-License-Identifier: GPL-3.0-or-later
// The loop that carries an operation of the transfer library out, watches its limits and looks after the
// window.
#pragma once

#include "update/curl_operation.h"
#include "update/transfer_component.h"

#include <chrono>
#include <functional>
#include <memory>

namespace tallywick {

/// Carries operations out, one after the other; connections are kept between them. It outlives them all.
class CurlRunner {
 public:
  /// `watch` is null where nobody looks on.
  explicit CurlRunner(TransferWatch* watch);

  /// Begins a task of several operations, which together may take the times' limit for a folder.
  void begin(const TransferTimes& times);
  /// What the watch learns of the task; whoever runs the operations keeps it.
  TransferProgress& progress() { return progress_; }

  /// Runs to the end; `flowed` is called when bytes have flowed. An operation that passes one of its limits
  /// ends with CURLE_OPERATION_TIMEDOUT and knows which. Raises TransferCancelled.
  CURLcode run(CurlOperation& operation, const std::function<void()>& flowed);
  /// Raises TransferCancelled where the watch wants it.
  void look();
  /// Whether the last operation has left a connection.
  bool isConnected() const { return connected_; }
  /// Says `farewell` on that connection and closes it as soon as the server has answered or has been silent
  /// for as long as the operation's times allow.
  void leave(CurlOperation& farewell);

 private:
  using Steady = std::chrono::steady_clock;

  CURLM* multi();
  CURLcode resultOf(const CurlOperation& operation) const;

  struct Close {
    void operator()(CURLM* handle) const { curl_multi_cleanup(handle); }
  };
  struct CloseShare {
    void operator()(CURLSH* handle) const { curl_share_cleanup(handle); }
  };
  TransferWatch* watch_;
  TransferProgress progress_;
  Steady::time_point deadline_ = Steady::time_point::max();
  /// Servers may want the TLS session of the commands again where a file goes over.
  std::unique_ptr<CURLSH, CloseShare> sessions_;
  std::unique_ptr<CURLM, Close> multi_;
  bool connected_ = false;
};

}  // namespace tallywick
