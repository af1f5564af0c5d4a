// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/https_fetch.h"

#include "core/text.h"
#include "update/curl_address.h"
#include "update/curl_errors.h"
#include "update/curl_runner.h"
#include "update/transfer_errors.h"

#include <algorithm>
#include <array>
#include <memory>
#include <new>
#include <string_view>
#include <zlib.h>

namespace tallywick {

namespace {

constexpr int mostRedirects = 5;

constexpr long ok = 200;
constexpr long notModified = 304;

struct Refusal {
  long status;
  std::string_view text;
};

constexpr std::array refusals = {
    Refusal{403, "the server refuses access to "},
    Refusal{404, "the server does not have "},
    Refusal{429, "too many requests, try again later: the server deferred "},
    Refusal{503, "the server is overloaded or being repaired, try again later for "},
};

struct WebAddress {
  std::string text;
  bool isEncrypted = false;
  bool isOnThisComputer = false;
};

bool isLoopback(std::string_view host) {
  const bool isNumeric = host.find_first_not_of("0123456789.") == std::string_view::npos;
  return host == "localhost" || host == "[::1]" || (isNumeric && host.starts_with("127."));
}

/// Raises an error where the address is none that may be asked.
WebAddress webAddress(const std::string& text) {
  const CurlAddress parts(text);
  const std::string scheme = parts.part(CURLUPART_SCHEME);
  if (!parts.isValid() || (scheme != "https" && scheme != "http") || parts.has(CURLUPART_USER) ||
      parts.has(CURLUPART_PASSWORD)) {
    throw transferError(TransferFault::address, join(inQuotes(text), " is not a web address"),
                        printable(text));
  }
  WebAddress address{text, scheme == "https", isLoopback(parts.part(CURLUPART_HOST))};
  if (!address.isEncrypted && !address.isOnThisComputer) {
    throw transferError(TransferFault::tls, join(inQuotes(text), " is an address without encryption"),
                        printable(text));
  }
  return address;
}

bool isHeaderText(std::string_view text) {
  return !text.empty() &&
         std::ranges::all_of(text, [](char letter) { return letter >= ' ' && letter <= '~'; });
}

class WebOperation : public CurlOperation {
 public:
  WebOperation(const WebAddress& address, const Validators& known, const FetchSettings& settings)
      : CurlOperation(address.text, settings.times) {
    setLimit(settings.largest);
    const std::string certificates = trustedCertificates(settings.certificates);
    if (!certificates.empty()) set(CURLOPT_CAINFO, certificates.c_str());
    // What this computer serves takes no way round.
    if (address.isOnThisComputer) set(CURLOPT_PROXY, "");
    set(CURLOPT_USERAGENT, "Tallywick");
    // Unpacked here: the library takes what is cut short for whole.
    append(CURLOPT_HTTPHEADER, "Accept-Encoding: gzip");
    if (isHeaderText(known.entityTag)) append(CURLOPT_HTTPHEADER, join("If-None-Match: ", known.entityTag));
    if (isHeaderText(known.lastModified)) {
      append(CURLOPT_HTTPHEADER, join("If-Modified-Since: ", known.lastModified));
    }
    onLine = [this](std::string_view line) { takeHeader(line); };
  }

  const Validators& validators() const { return validators_; }
  /// How the contents are packed; empty where they are not.
  const std::string& packing() const { return packing_; }
  /// Whether the library has seen that nothing is missing at the end.
  bool hasEnd() const {
    long version = 0;
    curl_easy_getinfo(handle(), CURLINFO_HTTP_VERSION, &version);
    return announcedLength() >= 0 || isInPieces_ || version > CURL_HTTP_VERSION_1_1;
  }

  /// Empty where the server does not lead elsewhere.
  std::string redirect() const {
    char* address = nullptr;
    curl_easy_getinfo(handle(), CURLINFO_REDIRECT_URL, &address);
    return address != nullptr ? address : "";
  }

 private:
  void takeHeader(std::string_view line) {
    // Each answer begins with one; an interim one may come before the last.
    if (line.starts_with("HTTP/")) {
      validators_ = {};
      packing_.clear();
      isInPieces_ = false;
    }
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos) return;
    const std::string_view name = line.substr(0, colon);
    line.remove_prefix(colon + 1);
    while (line.ends_with('\n') || line.ends_with('\r')) line.remove_suffix(1);
    if (equalIgnoringCase(name, "ETag")) validators_.entityTag = trimmed(line);
    if (equalIgnoringCase(name, "Last-Modified")) validators_.lastModified = trimmed(line);
    if (equalIgnoringCase(name, "Content-Encoding")) packing_ = lowered(trimmed(line));
    if (equalIgnoringCase(name, "Transfer-Encoding")) isInPieces_ = lowered(trimmed(line)) == "chunked";
  }

  Validators validators_;
  std::string packing_;
  bool isInPieces_ = false;
};

[[noreturn]] void refuse(long status, const std::string& subject, const std::string& where) {
  const auto* known = std::ranges::find(refusals, status, &Refusal::status);
  const std::string_view text =
      known != refusals.end() ? known->text : "the server gives no usable answer for ";
  throw transferError(TransferFault::webAnswer, join(text, subject, " (", std::to_string(status), ")"),
                      where);
}

/// Where the server leads instead of `from`; raises an error where nobody may follow.
WebAddress redirected(const WebAddress& from, const std::string& to) {
  const WebAddress next = webAddress(to);
  if (from.isEncrypted && !next.isEncrypted) {
    throw transferError(TransferFault::redirect,
                        join(inQuotes(from.text), " leads to an address without encryption"), printable(to));
  }
  return next;
}

/// The bytes of zlib's own type, which it does not write to.
Bytef* bytesOf(const char* text) {
  return const_cast<Bytef*>(reinterpret_cast<const Bytef*>(text));
}

enum class Unpacked { whole, cut, damaged, tooLarge };

/// Unpacks what gzip has packed, one piece or several, up to the checksum behind each.
Unpacked unpack(std::string_view packed, std::uint64_t largest, std::string& contents) {
  constexpr int onlyGzip = 16 + MAX_WBITS;
  z_stream stream{};
  if (inflateInit2(&stream, onlyGzip) != Z_OK) throw std::bad_alloc();
  const std::unique_ptr<z_stream, int (*)(z_stream*)> end(&stream, inflateEnd);
  stream.next_in = bytesOf(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());
  std::array<char, 65536> piece{};
  while (true) {
    stream.next_out = bytesOf(piece.data());
    stream.avail_out = static_cast<uInt>(piece.size());
    const int result = inflate(&stream, Z_NO_FLUSH);
    const std::size_t size = piece.size() - stream.avail_out;
    if (size > largest - contents.size()) return Unpacked::tooLarge;
    contents.append(piece.data(), size);
    if (result == Z_STREAM_END && stream.avail_in == 0) return Unpacked::whole;
    if (result == Z_STREAM_END) {
      inflateReset(&stream);
    } else if (result == Z_BUF_ERROR || (result == Z_OK && size == 0 && stream.avail_in == 0)) {
      return Unpacked::cut;
    } else if (result != Z_OK) {
      return Unpacked::damaged;
    }
  }
}

/// What the server has given; raises an error where it is not whole.
FetchedDocument documentFrom(const WebOperation& operation, std::uint64_t largest, const std::string& subject,
                             const std::string& where) {
  FetchedDocument document{false, {}, operation.hasEnd(), operation.validators()};
  if (operation.packing().empty() || operation.packing() == "identity") {
    document.contents = operation.received();
    return document;
  }
  if (operation.packing() != "gzip" && operation.packing() != "x-gzip") {
    throw transferError(TransferFault::protocol,
                        join("the server packs in a way that was not asked for ", subject), where);
  }
  document.isKnownWhole = true;
  switch (unpack(operation.received(), largest, document.contents)) {
    case Unpacked::whole:
      return document;
    case Unpacked::cut:
      throw curlError(CURLE_PARTIAL_FILE, operation, subject, where, Asked::webServer);
    case Unpacked::tooLarge:
      throw transferError(TransferFault::limit, join("too large: ", subject), where);
    case Unpacked::damaged:
      break;
  }
  throw curlError(CURLE_BAD_CONTENT_ENCODING, operation, subject, where, Asked::webServer);
}

}  // namespace

FetchedDocument fetchDocument(const std::string& address, const Validators& known,
                              const FetchSettings& settings, TransferWatch* watch) {
  CurlRunner runner(watch);
  runner.begin(settings.times);
  runner.progress().filesInAll = 1;
  WebAddress from = webAddress(address);
  const std::string subject = inQuotes(address);
  for (int redirects = 0; redirects <= mostRedirects; ++redirects) {
    const std::string where = printable(from.text);
    WebOperation operation(from, known, settings);
    const CURLcode result = runner.run(operation, [&] { runner.progress().bytes = operation.bytesDone(); });
    if (result != CURLE_OK) throw curlError(result, operation, subject, where, Asked::webServer);
    const long status = operation.responseCode();
    if (status == ok) return documentFrom(operation, settings.largest, subject, where);
    if (status == notModified && known != Validators{}) return {true, {}, true, known};
    const std::string next = operation.redirect();
    if (next.empty()) refuse(status, subject, where);
    from = redirected(from, next);
  }
  throw transferError(TransferFault::redirect, join(subject, " redirects more than five times"),
                      printable(from.text));
}

}  // namespace tallywick
