// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draws.h"

#include "core/text.h"

#include <algorithm>

namespace tallywick {

namespace {

char* putBlanks(char* to, std::size_t count) {
  constexpr std::string_view blanks = "    ";
  for (; count > blanks.size(); count -= blanks.size()) to = put(to, blanks);
  return put(to, blanks.substr(0, count));
}

}  // namespace

bool Draw::hasNumbers() const {
  const auto isBlank = [](std::string_view ball) { return trimmed(ball).empty(); };
  return !isBlank(extra) && std::ranges::none_of(white, isBlank);
}

std::string Draw::dateKey() const {
  return join(month, day, year);
}

std::string Draw::displayDate() const {
  return join(month, "-", day, "-", year);
}

std::string Draw::line() const {
  std::string text(lineSize({}), ' ');
  writeLine(text.data(), {});
  return text;
}

std::size_t Draw::lineSize(Gaps gaps) const {
  std::size_t size = month.size() + day.size() + year.size() + extra.size() + 7 + gaps.date + gaps.extra;
  for (std::string_view ball : white) size += ball.size();
  return size;
}

void Draw::writeLine(char* to, Gaps gaps) const {
  to = put(to, month);
  *to++ = '-';
  to = put(to, day);
  *to++ = '-';
  to = putBlanks(put(to, year), gaps.date);
  for (std::string_view ball : white) {
    *to++ = ' ';
    to = put(to, ball);
  }
  put(putBlanks(to, gaps.extra), extra);
}

Draw drawOf(const Fields<drawFields>& record) {
  return drawAt(record, mainBalls);
}
Draw doublePlayDrawOf(const Fields<doublePlayFields>& record) {
  return drawAt(record, doublePlayBalls);
}

}  // namespace tallywick
