// SPDX-License-Identifier: GPL-3.0-or-later
// The parts of an address, as the transfer library sees them.
#pragma once

#include <curl/curl.h>
#include <memory>
#include <string>

namespace tallywick {

class CurlAddress {
 public:
  explicit CurlAddress(const std::string& text);

  /// Whether the text is an address at all.
  bool isValid() const { return valid_; }
  /// Empty where the address does not have it.
  std::string part(CURLUPart part) const;
  bool has(CURLUPart part) const;

 private:
  struct Close {
    void operator()(CURLU* url) const { curl_url_cleanup(url); }
  };
  std::unique_ptr<CURLU, Close> url_;
  bool valid_;
};

}  // namespace tallywick
