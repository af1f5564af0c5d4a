// SPDX-License-Identifier: GPL-3.0-or-later
#include "update/server_listing.h"

#include "core/text.h"

#include <algorithm>
#include <utility>

namespace tallywick {

namespace {

enum class Line { file, passedOver, notUnderstood };

bool isDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

bool isNumber(std::string_view word) {
  return !word.empty() && std::all_of(word.begin(), word.end(), isDigit);
}

/// A word of a line with the place where it ends.
struct Word {
  std::string_view text;
  std::size_t end;
};

std::vector<Word> wordsOf(std::string_view line) {
  std::vector<Word> words;
  for (std::size_t at = line.find_first_not_of(' '); at < line.size(); at = line.find_first_not_of(' ', at)) {
    const std::size_t end = std::min(line.find(' ', at), line.size());
    words.push_back({line.substr(at, end - at), end});
    at = end;
  }
  return words;
}

/// The name begins one blank behind `word`; more blanks belong to it.
std::string_view nameBehind(const Word& word, std::string_view line) {
  return line.substr(std::min(word.end + 1, line.size()));
}

Line entry(std::string_view name, std::optional<std::uint64_t> size, ListedFile& file) {
  if (name == "." || name == "..") return Line::passedOver;
  file = {std::string(name), size};
  return Line::file;
}

/// Gives each line to `read`, which fills in a file where the line lists one.
template <typename Read>
Listing readLines(std::string_view text, Read read) {
  std::vector<ListedFile> files;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    ListedFile file;
    const Line kind = read(line, file);
    if (kind == Line::notUnderstood) return std::nullopt;
    if (kind == Line::file) files.push_back(std::move(file));
  }
  return files;
}

Line readMachineLine(std::string_view line, ListedFile& file) {
  if (line.find_first_of("=;") == std::string_view::npos) return Line::passedOver;
  const std::size_t blank = line.find(' ');
  if (blank == std::string_view::npos) return Line::notUnderstood;
  std::string type;
  std::optional<std::uint64_t> size;
  std::string_view facts = line.substr(0, blank);
  while (!facts.empty()) {
    const std::size_t end = std::min(facts.find(';'), facts.size());
    const std::string_view fact = facts.substr(0, end);
    facts.remove_prefix(std::min(end + 1, facts.size()));
    const std::size_t equals = std::min(fact.find('='), fact.size());
    const std::string_view value = fact.substr(std::min(equals + 1, fact.size()));
    if (equalIgnoringCase(fact.substr(0, equals), "type")) type = lowered(value);
    if (equalIgnoringCase(fact.substr(0, equals), "size")) size = wholeNumber<std::uint64_t>(value);
  }
  if (type.empty()) return Line::notUnderstood;
  return type == "file" ? entry(line.substr(blank + 1), size, file) : Line::passedOver;
}

/// Ten or more signs: the kind of the entry and three times three permissions.
bool isUnixMode(std::string_view word) {
  return word.size() >= 10 && word.substr(1, 9).find_first_not_of("rwxsStTlL-") == std::string_view::npos;
}

/// "Nov 21 10:35", "Nov 21 2026" or, with `words` 2 long, "2026-11-21 10:35", behind the size at `at`. The
/// number of the date's words; 0 where there is not a date.
std::size_t dateLengthBehind(const std::vector<Word>& words, std::size_t at) {
  const auto word = [&](std::size_t i) {
    return at + i < words.size() ? words[at + i].text : std::string_view();
  };
  const auto isTime = [](std::string_view text) {
    return text.size() >= 4 && isDigit(text[0]) && text.find(':') != std::string_view::npos;
  };
  if (word(1).size() == 10 && isNumber(word(1).substr(0, 4)) && word(1)[4] == '-' && isTime(word(2)))
    return 2;
  const bool month = !word(1).empty() && !isDigit(word(1)[0]);
  const bool day = isNumber(word(2)) && word(2).size() <= 2;
  const bool year = isNumber(word(3)) && word(3).size() == 4;
  return month && day && (year || isTime(word(3))) ? 3 : 0;
}

Line readUnixLine(std::string_view line, const std::vector<Word>& words, ListedFile& file) {
  // Only the size has a date behind it, however many words owner and group are.
  for (std::size_t at = 1; at < words.size(); ++at) {
    const std::size_t date = isNumber(words[at].text) ? dateLengthBehind(words, at) : 0;
    if (date == 0) continue;
    if (words[at + date].end == line.size()) return Line::notUnderstood;
    return entry(nameBehind(words[at + date], line), wholeNumber<std::uint64_t>(words[at].text), file);
  }
  return Line::notUnderstood;
}

/// "11-21-26" or "11-21-2026".
bool isWindowsDate(std::string_view word) {
  return (word.size() == 8 || word.size() == 10) && isNumber(word.substr(0, 2)) && word[2] == '-' &&
         isNumber(word.substr(3, 2)) && word[5] == '-' && isNumber(word.substr(6));
}

Line readWindowsLine(std::string_view line, const std::vector<Word>& words, ListedFile& file) {
  if (words.size() < 3) return Line::notUnderstood;
  if (words[2].text.starts_with('<')) return Line::passedOver;
  const auto size = wholeNumber<std::uint64_t>(words[2].text);
  if (!size || words[2].end == line.size()) return Line::notUnderstood;
  return entry(nameBehind(words[2], line), size, file);
}

Line readPeopleLine(std::string_view line, ListedFile& file) {
  const std::vector<Word> words = wordsOf(line);
  if (words.empty()) return Line::passedOver;
  if (isWindowsDate(words[0].text)) return readWindowsLine(line, words, file);
  if (isUnixMode(words[0].text)) {
    return words[0].text[0] == '-' ? readUnixLine(line, words, file) : Line::passedOver;
  }
  return Line::passedOver;
}

}  // namespace

Listing readMachineListing(std::string_view text) {
  return readLines(text, readMachineLine);
}

Listing readPeopleListing(std::string_view text) {
  return readLines(text, readPeopleLine);
}

}  // namespace tallywick
