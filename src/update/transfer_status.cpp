// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/transfer_status.h"

#include "core/text.h"

namespace tallywick {

namespace {

/// With a comma before every three digits.
std::string grouped(std::uint64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > 3; at -= 3) text.insert(at - 3, ",");
  return text;
}

}  // namespace

std::string transferText(const TransferInfo& info) {
  const std::string inAll = info.bytesInAll == 0 ? "" : join(" of ", grouped(info.bytesInAll));
  return join(info.file, ": ", grouped(info.bytesDone), inAll, " bytes");
}

}  // namespace tallywick
