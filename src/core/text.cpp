#include "core/text.h"

#include <algorithm>

namespace tallywick {

namespace {

char lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
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

std::string_view cut(std::string_view text, std::size_t position, std::size_t length) {
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

}  // namespace tallywick
