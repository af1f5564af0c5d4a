// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/curl_errors.h"

#include "core/os.h"
#include "core/text.h"
#include "update/transfer_errors.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tallywick {

namespace {

struct Meaning {
  CURLcode result;
  TransferFault fault;
  std::string_view text;
  /// Whether the text needs the subject to be understood.
  bool namesSubject = false;
  /// In the place of `text` where a web server was asked, with the subject; empty for the same text.
  std::string_view webText = {};
};

constexpr std::array meanings = {
    Meaning{CURLE_URL_MALFORMAT, TransferFault::address, noServerAddress, false, "no web address: "},
    Meaning{CURLE_COULDNT_RESOLVE_HOST, TransferFault::address, "the update server's address is not known",
            false, "not connected to the internet, or no such server: "},
    Meaning{CURLE_COULDNT_CONNECT, TransferFault::connection, "no connection to the update server", false,
            "no connection to the server of "},
    Meaning{CURLE_LOGIN_DENIED, TransferFault::login, "login denied"},
    Meaning{CURLE_FTP_ACCEPT_TIMEOUT, TransferFault::timeOut, "timed out, the server did not call back"},
    Meaning{CURLE_FTP_ACCEPT_FAILED, TransferFault::connection, "the server did not call back"},
    Meaning{CURLE_USE_SSL_FAILED, TransferFault::tls, "the server offers no TLS, which the settings require"},
    Meaning{CURLE_SSL_CONNECT_ERROR, TransferFault::tls, "no TLS connection to the update server", false,
            "no TLS connection to the server of "},
    Meaning{CURLE_PEER_FAILED_VERIFICATION, TransferFault::tls, "the server's certificate is not trusted"},
    Meaning{CURLE_SSL_CACERT_BADFILE, TransferFault::tls, "the file of trusted certificates cannot be read"},
    Meaning{CURLE_REMOTE_ACCESS_DENIED, TransferFault::serverFolder, "the server does not open the folder ",
            true},
    Meaning{CURLE_REMOTE_FILE_NOT_FOUND, TransferFault::serverFile, "the server did not send ", true},
    Meaning{CURLE_FTP_COULDNT_RETR_FILE, TransferFault::serverFile, "the server did not send ", true},
    Meaning{CURLE_QUOTE_ERROR, TransferFault::serverFolder, "the server refuses ", true},
    Meaning{CURLE_UPLOAD_FAILED, TransferFault::serverFile, "the server rejected ", true},
    Meaning{CURLE_PARTIAL_FILE, TransferFault::interrupted, "interrupted in the middle of ", true},
    Meaning{CURLE_BAD_CONTENT_ENCODING, TransferFault::interrupted, "damaged on its way: ", true},
    Meaning{CURLE_RECV_ERROR, TransferFault::interrupted, "connection lost during ", true},
    Meaning{CURLE_SEND_ERROR, TransferFault::interrupted, "connection lost during ", true},
    Meaning{CURLE_GOT_NOTHING, TransferFault::interrupted, "connection lost during ", true},
};

constexpr long serviceClosing = 421;

std::string_view timedOutAt(const CurlOperation& operation, Asked asked) {
  if (operation.passedLimit() == PassedLimit::rate) return "timed out, too slow: ";
  if (operation.passedLimit() == PassedLimit::folder)
    return asked == Asked::webServer ? "timed out, it takes too long: "
                                     : "timed out, the folder takes too long: ";
  if (!operation.isConnected()) return "timed out while connecting";
  return operation.bytesDone() == 0 ? "timed out while waiting for an answer to "
                                    : "timed out, the transfer stalled in the middle of ";
}

bool wasRefused(const CurlOperation& operation) {
  long number = 0;
  curl_easy_getinfo(operation.handle(), CURLINFO_OS_ERRNO, &number);
  return os::saysRefused(number);
}

Meaning meaningOf(CURLcode result, const CurlOperation& operation, Asked asked) {
  if (operation.passedLimit() == PassedLimit::size)
    return {result, TransferFault::limit, "too large: ", true};
  // The library counts a server that closes down among the time-outs.
  if (asked == Asked::updateServer && operation.responseCode() == serviceClosing) {
    return {result, TransferFault::connection, "the server is busy or closing down"};
  }
  if (result == CURLE_OPERATION_TIMEDOUT) {
    return {result, TransferFault::timeOut, timedOutAt(operation, asked), operation.isConnected(),
            "timed out while connecting to the server of "};
  }
  if (result == CURLE_COULDNT_CONNECT && wasRefused(operation)) {
    return {result, TransferFault::connection, "connection refused", false,
            "connection refused by the server of "};
  }
  const auto* found =
      std::ranges::find_if(meanings, [&](const Meaning& meaning) { return meaning.result == result; });
  if (found != meanings.end()) return *found;
  return {result, TransferFault::protocol, curl_easy_strerror(result)};
}

}  // namespace

RuntimeError curlError(CURLcode result, const CurlOperation& operation, std::string_view subject,
                       std::string where, Asked asked) {
  Meaning meaning = meaningOf(result, operation, asked);
  if (asked == Asked::webServer && !meaning.namesSubject && !meaning.webText.empty()) {
    meaning.text = meaning.webText;
    meaning.namesSubject = true;
  }
  return transferError(meaning.fault, join(meaning.text, meaning.namesSubject ? subject : ""),
                       std::move(where));
}

}  // namespace tallywick
