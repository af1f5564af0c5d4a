// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/draws.h"

#include "core/text.h"

#include <algorithm>
#include <cstring>

namespace tallywick {

namespace {

/// The draw whose white balls begin at field `first` (from 0); the extra ball follows them.
template <std::size_t Count>
Draw drawAt(const Fields<Count>& record, std::size_t first) {
  return {record[0],
          record[1],
          record[2],
          {record[first], record[first + 1], record[first + 2], record[first + 3], record[first + 4]},
          record[first + 5]};
}

/// Copies `piece`, which mostly has two characters, and returns what is behind it.
char* put(char* to, std::string_view piece) {
  if (piece.size() == 2) {
    std::memcpy(to, piece.data(), 2);
  } else {
    std::copy(piece.begin(), piece.end(), to);
  }
  return to + piece.size();
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
  std::string text;
  appendLine(text);
  return text;
}

void Draw::appendLine(std::string& to) const {
  std::size_t size = month.size() + day.size() + year.size() + extra.size() + 13;
  for (std::string_view ball : white) size += ball.size();
  const std::size_t before = to.size();
  to.resize(before + size, ' ');
  char* here = put(to.data() + before, month);
  *here++ = '-';
  here = put(here, day);
  *here++ = '-';
  here = put(here, year) + 3;
  for (std::string_view ball : white) here = put(here + 1, ball);
  put(here + 3, extra);
}

Draw drawOf(const Fields<drawFields>& record) {
  return drawAt(record, mainBalls);
}
Draw doublePlayDrawOf(const Fields<doublePlayFields>& record) {
  return drawAt(record, doublePlayBalls);
}

}  // namespace tallywick
