// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_text.h"

#include <algorithm>

namespace tallywick {

namespace {

constexpr char blank = ' ';

bool hasFieldBeginningWith(std::string_view line, std::string_view typed) {
  for (std::size_t at = line.find(typed); at != std::string_view::npos; at = line.find(typed, at + 1)) {
    if (at == 0 || line[at - 1] == blank) return true;
  }
  return false;
}

}  // namespace

std::vector<std::string_view> fieldsOf(std::string_view line) {
  std::vector<std::string_view> fields;
  std::size_t begin = line.find_first_not_of(blank);
  while (begin != std::string_view::npos) {
    const std::size_t end = std::min(line.find(blank, begin), line.size());
    fields.push_back(line.substr(begin, end - begin));
    begin = line.find_first_not_of(blank, end);
  }
  return fields;
}

std::string csvLine(std::string_view line) {
  std::string text;
  for (const std::string_view field : fieldsOf(line)) {
    if (!text.empty()) text += ',';
    if (field.find_first_of(",\"\r\n") == std::string_view::npos) {
      text += field;
      continue;
    }
    text += '"';
    for (const char character : field) text.append(character == '"' ? 2 : 1, character);
    text += '"';
  }
  return text;
}

std::vector<TextRun> emphasisedRuns(std::string_view line, const std::vector<std::string>& texts) {
  std::vector<TextRun> runs;
  if (texts.empty()) return runs;
  for (const std::string_view field : fieldsOf(line)) {
    if (std::find(texts.begin(), texts.end(), field) != texts.end())
      runs.push_back({static_cast<std::size_t>(field.data() - line.data()), field.size()});
  }
  return runs;
}

std::size_t findLine(const TextLines& lines, std::string_view typed, std::size_t start) {
  if (typed.empty()) return lines.size();
  for (std::size_t step = 0; step < lines.size(); ++step) {
    const std::size_t row = (start + step) % lines.size();
    if (hasFieldBeginningWith(lines[row], typed)) return row;
  }
  return lines.size();
}

}  // namespace tallywick
