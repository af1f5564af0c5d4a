// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/torn_line.h"

#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"

#include <algorithm>

namespace tallywick {

namespace {

bool hasWholeRecords(std::string_view line, std::size_t fields) {
  // An empty field at the end of a record is there where a line end follows it.
  const std::string text =
      line.ends_with('\n') || line.ends_with('\r') ? std::string(line) : join(line, "\n");
  SequentialReader reader(text, {});
  try {
    while (!reader.atEnd()) {
      for (std::size_t i = 0; i < fields; ++i) reader.field();
    }
  } catch (const RuntimeError&) {
    return false;
  }
  return true;
}

}  // namespace

std::size_t lineLength(std::string_view text) {
  const std::size_t end = std::min(text.find('\n'), text.find('\r'));
  if (end == std::string_view::npos) return text.size();
  return end + (text.substr(end).starts_with("\r\n") ? 2 : 1);
}

std::optional<TornLine> firstTornLine(std::string_view text, std::size_t fields) {
  for (std::size_t number = 1; !text.empty(); ++number) {
    const std::string_view line = text.substr(0, lineLength(text));
    if (!hasWholeRecords(line, fields)) return TornLine{number, line.substr(0, line.find_first_of("\r\n"))};
    text.remove_prefix(line.size());
  }
  return std::nullopt;
}

}  // namespace tallywick
