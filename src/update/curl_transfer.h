// SPDX-License-Identifier: GPL-3.0-or-later
// The FTP client: passive and active mode, TLS where it is required, folder listings of its own making.
#pragma once

#include "update/incoming_files.h"
#include "update/transfer_component.h"

#include <chrono>
#include <memory>
#include <string>

namespace tallywick {

class Clock;
class DataFolder;
class Screen;

/// How long the server may be silent.
struct TransferTimes {
  std::chrono::milliseconds connect{15'000};
  /// For the answer to a command.
  std::chrono::milliseconds answer{30'000};
  /// In the middle of a file.
  std::chrono::milliseconds stall{30'000};
};

struct CurlTransferSettings {
  /// Explicit TLS for commands and files; without it no login is sent.
  bool tlsRequired = false;
  /// A file with the certificates to trust; empty for the one that the environment's SSL_CERT_FILE names, or
  /// the system's.
  std::string certificates;
  TransferTimes times;
  IncomingLimits limits;
};

/// A component whose local folders are those of `folder`. It repaints `screen` while it waits; `window` is
/// the progress window that it can be asked for, null for none.
std::unique_ptr<TransferComponent> newCurlTransfer(const DataFolder& folder, const Clock& clock,
                                                   Screen& screen, CurlTransferSettings settings = {},
                                                   TransferWindow* window = nullptr);

}  // namespace tallywick
