#include "update/transfer_errors.h"

#include "core/text.h"

#include <utility>

namespace tallywick {

RuntimeError transferError(TransferFault fault, std::string_view what, std::string where) {
  constexpr std::uint32_t applicationErrors = 0x80040000;
  const auto number = static_cast<std::int32_t>(applicationErrors + static_cast<std::uint32_t>(fault));
  return RuntimeError(number, join("The transfer failed: ", what), std::move(where), "ftp.Transfer");
}

std::string inQuotes(std::string_view name) {
  std::string text = "\"";
  for (const char letter : name) text += letter >= ' ' && letter <= '~' ? letter : '?';
  return text += '"';
}

}  // namespace tallywick
