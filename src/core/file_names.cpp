// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/file_names.h"

#include "core/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <exception>

namespace tallywick {

namespace fs = std::filesystem;

namespace {

/// Takes the letter that begins `text` off it. A byte that begins none in UTF-8 is one in itself, as in
/// Latin-1.
char32_t takeLetter(std::string_view& text) {
  constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
  const auto lead = static_cast<unsigned char>(text.front());
  const auto length = static_cast<std::size_t>(std::countl_one(lead));
  const std::string_view behind = text.substr(1, length < 2 ? 0 : length - 1);
  text.remove_prefix(1);
  if (length < 2 || length > 4 || behind.size() != length - 1) return lead;
  char32_t letter = lead & (0x7FU >> length);
  for (const char byte : behind) {
    if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80) return lead;
    letter = letter << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
  }
  if (letter < smallest[length]) return lead;
  text.remove_prefix(behind.size());
  return letter;
}

bool isForbidden(char32_t letter) {
  const bool isControl = letter < 0x20 || (letter >= 0x7F && letter < 0xA0);
  return isControl || letter == '/' || letter == '\\' || letter == ':';
}

bool hasForbidden(std::string_view name) {
  while (!name.empty()) {
    if (isForbidden(takeLetter(name))) return true;
  }
  return false;
}

/// A device's name stays one with any extension.
bool isDeviceName(std::string_view name) {
  const std::string stem(trimmed(name.substr(0, name.find('.'))));
  const std::array<std::string_view, 6> devices = {"con", "prn", "aux", "nul", "conin$", "conout$"};
  if (std::ranges::any_of(devices, [&](auto device) { return equalIgnoringCase(device, stem); })) return true;
  const std::string_view port = cut(stem, 1, 3);
  return stem.size() == 4 && stem[3] >= '1' && stem[3] <= '9' &&
         (equalIgnoringCase(port, "com") || equalIgnoringCase(port, "lpt"));
}

bool matches(std::string_view wildcard, std::string_view name) {
  if (wildcard.empty()) return name.empty();
  if (wildcard.front() == '*') {
    return matches(wildcard.substr(1), name) || (!name.empty() && matches(wildcard, name.substr(1)));
  }
  if (name.empty() || (wildcard.front() != '?' && wildcard.front() != name.front())) return false;
  return matches(wildcard.substr(1), name.substr(1));
}

}  // namespace

std::string textOf(const fs::path& path) {
  try {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
  } catch (const std::exception&) {
    std::string text;
    for (const auto letter : path.native()) {
      text += letter >= ' ' && letter < 0x7F ? static_cast<char>(letter) : '?';
    }
    return text;
  }
}

std::string nameOf(const fs::path& file) {
  return textOf(file.filename());
}

fs::path pathOf(std::string_view text) {
  try {
    return fs::path(std::u8string(text.begin(), text.end()));
  } catch (const std::exception&) {
    std::u32string letters;
    for (const char byte : text) letters += static_cast<unsigned char>(byte);
    return fs::path(letters);
  }
}

bool isPlainFileName(std::string_view name) {
  return !name.empty() && !hasForbidden(name) && !name.ends_with('.') && !name.ends_with(' ') &&
         !isDeviceName(name);
}

bool matchesWildcard(std::string_view wildcard, std::string_view name) {
  return wildcard == "*.*" || matches(lowered(wildcard), lowered(name));
}

bool isPlayFileName(std::string_view name) {
  const std::string small = lowered(name);
  return small.ends_with(".ply") || small.ends_with(".sav") || small.ends_with(".sel");
}

}  // namespace tallywick
