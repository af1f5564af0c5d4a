// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/book_texts.h"

#include "core/plays.h"
#include "core/text.h"
#include "exports/quoted_record.h"

namespace tallywick::setup {

using exports::QuotedRecord;

std::string playsText(Game game, const std::vector<PlayEntry>& plays) {
  std::string text;
  for (const PlayEntry& play : plays) {
    QuotedRecord(text)
        .field(displayDate(play.day))
        .balls(play.balls)
        .field(decadePattern(infoOf(game), play.balls.white));
  }
  return text;
}

std::string savedTexts(const std::vector<Balls>& texts) {
  std::string text;
  for (const Balls& balls : texts) {
    std::string line;
    for (int white : balls.white) line.append(twoDigits(white)).append("  ");
    QuotedRecord(text).field(line.append(twoDigits(balls.extra)));
  }
  return text;
}

std::string calendarText(Day first, Day last) {
  std::string text;
  for (Day day = first; day <= last; day += 1) {
    const int code = day.weekday();
    std::string ordinal = std::to_string(day.dayOfYear());
    ordinal.insert(0, 3 - ordinal.size(), '0');
    QuotedRecord(text).day(day).field(weekdayName(day)).field(ordinal).field(std::to_string(code));
  }
  return text;
}

}  // namespace tallywick::setup
