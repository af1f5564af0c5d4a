// SPDX-License-Identifier: GPL-3.0-or-later
// The FTP client: passive and active mode, TLS where it is required, folder listings of its own making.
#pragma once

#include "update/transfer_component.h"
#include "update/transfer_limits.h"

#include <memory>
#include <string>

namespace tallywick {

class Clock;
class DataFolder;

struct CurlTransferSettings {
  /// Explicit TLS for commands and files; without it no login is sent.
  bool tlsRequired = false;
  /// A file with the certificates to trust; empty for the one that the environment's SSL_CERT_FILE names, or
  /// the system's.
  std::string certificates;
  /// "host:port:address,address" in the place of what the host's name leads to; empty for that.
  std::string addresses;
  TransferTimes times;
  IncomingLimits limits;
};

/// A component whose local folders are those of `folder`. `watch` looks after it while it waits; `window` is
/// the progress window that it can be asked for. Null for none.
std::unique_ptr<TransferComponent> newCurlTransfer(const DataFolder& folder, const Clock& clock,
                                                   CurlTransferSettings settings = {},
                                                   TransferWatch* watch = nullptr,
                                                   TransferWindow* window = nullptr);

}  // namespace tallywick
