// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/transfer_errors.h"

#include "core/text.h"

#include <algorithm>
#include <utility>

namespace tallywick {

RuntimeError transferError(TransferFault fault, std::string_view what, std::string where) {
  const auto number = static_cast<std::int32_t>(applicationErrors + static_cast<std::uint32_t>(fault));
  return RuntimeError(number, join("The transfer failed: ", what), std::move(where), "ftp.Transfer");
}

std::string printable(std::string_view text) {
  std::string shown(text);
  std::ranges::replace_if(
      shown, [](char letter) { return letter < ' ' || letter > '~'; }, '?');
  return shown;
}

std::string inQuotes(std::string_view name) {
  return join("\"", printable(name), "\"");
}

}  // namespace tallywick
