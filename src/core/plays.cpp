// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/plays.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/torn_line.h"

#include <algorithm>

namespace tallywick {

std::string Play::dateKey() const {
  return join(cut(date, 1, 2), cut(date, 4, 2), cut(date, 7, std::string::npos));
}

std::string Play::itemText() const {
  std::string text = join("  ", date, "    ");
  for (std::string_view number : main) text.append("  ").append(number);
  return text.append("  ").append(extra);
}

std::string Play::drawLine() const {
  std::string text = join(date, "   ");
  for (std::string_view number : main) text.append(" ").append(number);
  return text.append("   ").append(extra);
}

Play playOf(const Fields<playFields>& record) {
  return {record[0], {record[1], record[2], record[3], record[4], record[5]}, record[6], record[7]};
}

std::string decadePattern(const GameInfo& game, const std::array<int, 5>& main) {
  std::string pattern(static_cast<std::size_t>(game.lastNumber / 10 + 1), '0');
  for (int number : main) ++pattern[static_cast<std::size_t>(number / 10)];
  return pattern;
}

void appendRecord(std::string& text, const Play& play) {
  text.append("\"").append(play.date);
  for (std::string_view number : play.main) text.append("\",\"").append(number);
  text.append("\",\"").append(play.extra).append("\",\"").append(play.decades).append("\"\r\n");
}

namespace {

std::size_t lineAt(std::string_view text, std::size_t position) {
  std::size_t line = 1;
  for (std::size_t begin = lineLength(text); begin <= position && begin < text.size(); ++line)
    begin += lineLength(text.substr(begin));
  return line;
}

}  // namespace

WholePlays wholePlays(std::string_view text, const std::string& name) {
  WholePlays whole;
  const auto tear = [&](const std::string& where) {
    if (!whole.torn.empty()) return;
    whole.torn = where;
    whole.beforeTorn = whole.plays.size();
  };
  SequentialReader reader(text, name);
  std::size_t before = 0;
  try {
    while (!reader.atEnd()) {
      const std::size_t begin = before + reader.position();
      const Play play = playOf(reader.record<playFields>());
      const std::size_t line = lineLength(text.substr(begin));
      if (before + reader.position() <= begin + line) {
        whole.plays.push_back(play);
        whole.ends.push_back(before + reader.position());
        continue;
      }
      const std::size_t number = lineAt(text, begin);
      if (!whole.brokenLine) whole.brokenLine = number;
      tear(join(name, ", line ", std::to_string(number), ": the record goes on in the next line"));
      before = begin + line;
      reader = SequentialReader(text.substr(before), name);
    }
  } catch (const RuntimeError& error) {
    if (!error.is(ErrorNumber::inputPastEnd)) throw;
    tear(error.where());
  }
  if (whole.torn.empty()) whole.beforeTorn = whole.plays.size();
  return whole;
}

SequentialReader openPlays(const DataFolder& folder, std::string_view written) {
  try {
    return SequentialReader(folder, written);
  } catch (const RuntimeError& error) {
    if (!error.is(ErrorNumber::fileNotFound)) throw;
    return SequentialReader({}, std::string(written));
  }
}

PlayFile::PlayFile(const DataFolder& folder, std::string_view written) : reader_(openPlays(folder, written)) {
  forEachRecord<playFields>(reader_,
                            [&](const Fields<playFields>& record) { plays_.push_back(playOf(record)); });
}

}  // namespace tallywick
