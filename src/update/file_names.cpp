#include "update/file_names.h"

#include "core/text.h"

#include <algorithm>
#include <array>

namespace tallywick {

namespace {

bool isForbidden(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  return code < 0x20 || code == 0x7F || letter == '/' || letter == '\\' || letter == ':';
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

bool isPlainFileName(std::string_view name) {
  return !name.empty() && std::ranges::none_of(name, isForbidden) && !name.ends_with('.') &&
         !name.ends_with(' ') && !isDeviceName(name);
}

bool matchesWildcard(std::string_view wildcard, std::string_view name) {
  return wildcard == "*.*" || matches(lowered(wildcard), lowered(name));
}

bool isPlayFileName(std::string_view name) {
  const std::string small = lowered(name);
  return small.ends_with(".ply") || small.ends_with(".sav") || small.ends_with(".sel");
}

}  // namespace tallywick
