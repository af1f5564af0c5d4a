// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/parts/line_text.h"

#include "core/text.h"

#include <algorithm>

namespace tallywick {

namespace {

constexpr char blank = ' ';

bool beginsField(std::string_view line, std::size_t at) {
  return at == 0 || line[at - 1] == blank;
}

bool endsField(std::string_view line, std::size_t end) {
  return end == line.size() || line[end] == blank;
}

bool hasFieldBeginningWith(std::string_view line, std::string_view typed) {
  for (std::size_t at = line.find(typed); at != std::string_view::npos; at = line.find(typed, at + 1)) {
    if (beginsField(line, at)) return true;
  }
  return false;
}

}  // namespace

std::vector<std::string_view> piecesOf(std::string_view line) {
  std::vector<std::string_view> fields;
  std::size_t begin = line.find_first_not_of(blank);
  while (begin != std::string_view::npos) {
    const std::size_t end = std::min(line.find(blank, begin), line.size());
    fields.push_back(line.substr(begin, end - begin));
    begin = line.find_first_not_of(blank, end);
  }
  return fields;
}

std::string csvLine(std::span<const std::string> fields) {
  std::string text;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) text += ',';
    if (fields[i].find_first_of(",\"\r\n") == std::string_view::npos) {
      text += fields[i];
      continue;
    }
    text += '"';
    for (const char character : fields[i]) text.append(character == '"' ? 2 : 1, character);
    text += '"';
  }
  return text;
}

std::string csvLine(std::string_view line) {
  const std::vector<std::string_view> views = piecesOf(line);
  return csvLine(std::vector<std::string>(views.begin(), views.end()));
}

std::vector<TextRun> emphasisedRuns(std::string_view line, const std::vector<std::string>& texts) {
  std::vector<TextRun> runs;
  for (const std::string_view text : texts) {
    const std::string_view wanted = trimmed(text);
    if (wanted.empty()) continue;
    for (std::size_t at = line.find(wanted); at != std::string_view::npos; at = line.find(wanted, at + 1)) {
      if (beginsField(line, at) && endsField(line, at + wanted.size())) runs.push_back({at, wanted.size()});
    }
  }
  std::ranges::sort(runs, {}, &TextRun::begin);
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
