// SPDX-License-Identifier: GPL-3.0-or-later
// How long a transfer may take, and how much it may bring.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace tallywick {

struct TransferTimes {
  /// Until one of the host's addresses has taken the connection; they are tried one after the other.
  std::chrono::milliseconds connect{15'000};
  /// How long the server may be silent before the answer to a command,
  std::chrono::milliseconds answer{30'000};
  /// and in the middle of a file.
  std::chrono::milliseconds stall{30'000};
  /// Over each such span a file comes at `slowest` bytes a second or faster, on the average.
  std::chrono::milliseconds rateSpan{60'000};
  std::uint64_t slowest = 512;
  /// All files of a folder together.
  std::chrono::milliseconds folder{15 * 60'000};
};

/// What a server's folder may bring at most; it is kept in memory until all of it is there.
struct IncomingLimits {
  std::size_t files = 1000;
  std::uint64_t fileSize = std::uint64_t{64} << 20U;
  std::uint64_t allSizes = std::uint64_t{256} << 20U;
};

}  // namespace tallywick
