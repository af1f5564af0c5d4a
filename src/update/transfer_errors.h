// SPDX-License-Identifier: GPL-3.0-or-later
// The errors of a transfer: each says what happened, and none contains a login, a password or a server's own
// words, which may repeat them.
#pragma once

#include "core/runtime_error.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tallywick {

/// The application's error base: the number of an error is this and its code.
inline constexpr std::uint32_t applicationErrors = 0x80040000;
/// Of an address that cannot be one, whether the library or the program finds it.
inline constexpr std::string_view noServerAddress = "the update server's address is not valid";

/// Codes on the application's error base.
enum class TransferFault : int {
  address = 28100,
  connection,
  login,
  timeOut,
  tls,
  serverFolder,
  serverFile,
  interrupted,
  length,
  listing,
  name,
  limit,
  nothingThere,
  protocol,
  webAnswer,
  redirect,
  exportContents,
};

/// "The transfer failed: " and `what`; `where` is for standard error.
RuntimeError transferError(TransferFault fault, std::string_view what, std::string where = {});

/// `text` with "?" for what a screen cannot show.
std::string printable(std::string_view text);
/// `name` in double quotes for a message, printable.
std::string inQuotes(std::string_view name);

}  // namespace tallywick
