// SPDX-License-Identifier: GPL-3.0-or-later
// What the transfer library's results mean in the program's own words.
#pragma once

#include "core/runtime_error.h"
#include "update/curl_operation.h"

#include <string>
#include <string_view>

namespace tallywick {

/// Whom an operation has asked, for the words of its error.
enum class Asked { updateServer, webServer };

/// The error for an operation that ended with `result`; `subject` is what it was about, for example a file's
/// name in quotes, and `where` is for standard error.
RuntimeError curlError(CURLcode result, const CurlOperation& operation, std::string_view subject,
                       std::string where, Asked asked = Asked::updateServer);

}  // namespace tallywick
