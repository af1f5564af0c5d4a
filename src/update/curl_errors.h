// SPDX-License-Identifier: GPL-3.0-or-later
// What the transfer library's results mean in the program's own words.
#pragma once

#include "core/runtime_error.h"
#include "update/curl_operation.h"

#include <string>
#include <string_view>

namespace tallywick {

/// The error for an operation that ended with `result`; `subject` is what it was about, for example a file's
/// name in quotes, and `where` is for standard error.
RuntimeError curlError(CURLcode result, const CurlOperation& operation, std::string_view subject,
                       std::string where);

}  // namespace tallywick
