// SPDX-License-Identifier: GPL-3.0-or-later
// Fetches one document of a web server, verified and whole, or raises an error that says why not.
#pragma once

#include "update/transfer_component.h"
#include "update/transfer_limits.h"

#include <cstdint>
#include <string>

namespace tallywick {

/// What a server names a version of a document by, in its own words; empty where it does not.
struct Validators {
  std::string entityTag;
  std::string lastModified;

  bool operator==(const Validators&) const = default;
};

struct FetchSettings {
  /// A file with the certificates to trust; empty for the one that the environment's SSL_CERT_FILE names, or
  /// the system's.
  std::string certificates;
  TransferTimes times;
  /// In bytes, after unpacking.
  std::uint64_t largest = std::uint64_t{64} << 20U;
};

struct FetchedDocument {
  /// The server has nothing newer than what `known` names; the contents are empty.
  bool isUnchanged = false;
  std::string contents;
  /// Whether the transfer had an end of its own: a length, pieces with a last one, or a checksum.
  bool isKnownWhole = false;
  Validators validators;
};

/// The address is one of HTTPS, or of plain HTTP on this computer. At most five redirects are followed, none
/// of them to a lesser scheme. `watch` is null where nobody looks on; it can raise TransferCancelled.
FetchedDocument fetchDocument(const std::string& address, const Validators& known,
                              const FetchSettings& settings = {}, TransferWatch* watch = nullptr);

}  // namespace tallywick
