// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/curl_address.h"

#include <new>

namespace tallywick {

CurlAddress::CurlAddress(const std::string& text) : url_(curl_url()) {
  if (!url_) throw std::bad_alloc();
  valid_ = curl_url_set(url_.get(), CURLUPART_URL, text.c_str(), 0) == CURLUE_OK;
}

std::string CurlAddress::part(CURLUPart part) const {
  char* found = nullptr;
  if (curl_url_get(url_.get(), part, &found, 0) != CURLUE_OK) return {};
  const std::unique_ptr<char, void (*)(void*)> text(found, curl_free);
  return text.get();
}

bool CurlAddress::has(CURLUPart part) const {
  char* found = nullptr;
  const bool isThere = curl_url_get(url_.get(), part, &found, 0) == CURLUE_OK;
  curl_free(found);
  return isThere;
}

}  // namespace tallywick
