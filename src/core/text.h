// SPDX-License-Identifier: GPL-3.0-or-later
// Small text helpers that every layer shares.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace tallywick {

/// The pieces one after the other.
template <typename... Pieces>
std::string join(const Pieces&... pieces) {
  const std::initializer_list<std::string_view> views = {std::string_view(pieces)...};
  std::size_t size = 0;
  for (std::string_view view : views) size += view.size();
  std::string text;
  text.reserve(size);
  for (std::string_view view : views) text += view;
  return text;
}

/// Copies `piece`, which in a line of many has one to four characters and then costs no call. Returns where
/// the next piece goes.
inline char* put(char* to, std::string_view piece) {
  switch (piece.size()) {
    case 1:
      *to = piece.front();
      break;
    case 2:
      std::memcpy(to, piece.data(), 2);
      break;
    case 3:
      std::memcpy(to, piece.data(), 3);
      break;
    case 4:
      std::memcpy(to, piece.data(), 4);
      break;
    default:
      piece.copy(to, piece.size());
  }
  return to + piece.size();
}

/// `text` without blanks at either end.
std::string_view trimmed(std::string_view text);

/// What some editors write before a text in UTF-8.
inline constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Whether `text` is UTF-8, as every text of the letters of ASCII is.
bool isUtf8(std::string_view text);

/// `text` for the screen: what is not UTF-8 is taken for Windows-1252, which older record books are written
/// in.
std::string asUtf8(std::string_view text);

/// `length` characters of `text`, in UTF-8 or Windows-1252, from the 1-based `position`; what lies beyond the
/// end is left out.
std::string_view cut(std::string_view text, std::size_t position, std::size_t length);

/// Whether two number texts are the same. Nearly all have two digits, and these cost neither a call nor a
/// branch that is hard to predict.
inline bool sameText(std::string_view left, std::string_view right) {
  if (left.size() != right.size()) return false;
  if (left.size() != 2) return left == right;
  std::array<std::uint16_t, 2> digits{};
  std::memcpy(&digits[0], left.data(), 2);
  std::memcpy(&digits[1], right.data(), 2);
  return digits[0] == digits[1];
}

/// Equal but for the case of the letters A to Z.
bool equalIgnoringCase(std::string_view left, std::string_view right);

/// A to Z made small.
std::string lowered(std::string_view text);

/// A number below 100 with two digits.
std::string twoDigits(int number);

/// The number that the whole of `text` writes in decimal digits, a signed type also after a minus; none for
/// any other text and for a number out of range.
template <std::integral Number>
std::optional<Number> wholeNumber(std::string_view text) {
  Number number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

/// Whether `text` has a digit wherever `form` has "0", and equals it elsewhere.
bool hasForm(std::string_view text, std::string_view form);

/// `hash` goes on over `bytes` (FNV-1a).
std::uint64_t hashed(std::uint64_t hash, std::string_view bytes);

/// The size of `bytes` and a hash, with a blank between: it shows whether they are still the same.
std::string fingerprint(std::string_view bytes);

}  // namespace tallywick
