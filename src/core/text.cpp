// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text.h"

#include <algorithm>
#include <charconv>

namespace tallywick {

namespace {

char lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// How many bytes the UTF-8 character takes up that begins `text`; 0 where none does.
std::size_t sizeOfCharacter(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead < 0xC2 || lead > 0xF4) return 0;
  const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (text.size() < size) return 0;
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return 0;
  }
  // Overlong forms, surrogates and what is beyond the last character.
  const bool excluded = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F) ||
                        (lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F);
  return excluded ? 0 : size;
}

/// Windows-1252 from 0x80 to 0x9F; five of them are no characters and become their own number.
constexpr std::array<std::uint16_t, 32> windowsCharacters = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

void appendCharacter(std::string& text, unsigned character) {
  const auto append = [&](unsigned bits) { text += static_cast<char>(bits); };
  if (character < 0x80) return append(character);
  if (character < 0x800) {
    append(0xC0U | character >> 6);
  } else {
    append(0xE0U | character >> 12);
    append(0x80U | (character >> 6 & 0x3FU));
  }
  append(0x80U | (character & 0x3FU));
}

/// The bytes that the first `characters` of `text` take up.
std::size_t bytesOf(std::string_view text, std::size_t characters) {
  const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };
  std::size_t bytes = 0;
  for (; characters > 0 && bytes < text.size(); --characters) {
    ++bytes;
    while (bytes < text.size() && continues(text[bytes])) ++bytes;
  }
  return bytes;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool isUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t size = sizeOfCharacter(text);
    if (size == 0) return false;
    text.remove_prefix(size);
  }
  return true;
}

std::string asUtf8(std::string_view text) {
  if (isUtf8(text)) return std::string(text);
  std::string shown;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    appendCharacter(shown, byte >= 0x80 && byte < 0xA0 ? windowsCharacters[byte - 0x80U] : byte);
  }
  return shown;
}

std::string_view cut(std::string_view text, std::size_t position, std::size_t length) {
  if (!isUtf8(text)) return text.substr(std::min(position - 1, text.size()), length);
  const std::size_t begin = bytesOf(text, position - 1);
  return text.substr(begin, length == std::string_view::npos ? length : bytesOf(text.substr(begin), length));
}

bool equalIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return lower(a) == lower(b); });
}

std::string lowered(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), lower);
  return result;
}

std::string twoDigits(int number) {
  return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

bool hasForm(std::string_view text, std::string_view form) {
  return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char letter, char place) {
    return place == '0' ? letter >= '0' && letter <= '9' : letter == place;
  });
}

std::uint64_t hashed(std::uint64_t hash, std::string_view bytes) {
  for (const char byte : bytes) hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  return hash;
}

std::string fingerprint(std::string_view bytes) {
  const std::uint64_t hash = hashed(0xCBF29CE484222325U, bytes);
  std::array<char, 16> digits{};
  const char* const end = std::to_chars(digits.begin(), digits.end(), hash, 16).ptr;
  return join(std::to_string(bytes.size()), " ", std::string_view(digits.data(), end));
}

}  // namespace tallywick
