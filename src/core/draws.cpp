#include "core/draws.h"

#include "core/text.h"

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

}  // namespace

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
  to.append(month).append("-").append(day).append("-").append(year).append("   ");
  for (std::string_view ball : white) to.append(" ").append(ball);
  to.append("   ").append(extra);
}

Draw drawOf(const Fields<drawFields>& record) {
  return drawAt(record, 3);
}
Draw mainDrawOf(const Fields<doublePlayFields>& record) {
  return drawAt(record, 3);
}
Draw doublePlayDrawOf(const Fields<doublePlayFields>& record) {
  return drawAt(record, 11);
}

}  // namespace tallywick
