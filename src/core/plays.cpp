// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/plays.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/runtime_error.h"
#include "core/text.h"

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
