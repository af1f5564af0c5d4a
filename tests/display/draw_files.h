// Draw files for the tests, as lists of fields that a test can change before it writes them.
#pragma once

#include "core/runtime_error.h"
#include "core/text.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace tallywick::test {

using Record = std::vector<std::string>;
using Records = std::vector<Record>;

inline std::string fileOf(const Records& records) {
  std::string text;
  for (const Record& record : records) {
    for (const std::string& field : record)
      text.append(&field == &record.front() ? "\"" : ",\"").append(field).append("\"");
    text += "\r\n";
  }
  return text;
}

/// Up to fifteen draws in which no number comes up twice, newest first: the newest on 01-28-2026 is 01 to 05
/// and 76, the one before it 06 to 10 and 77.
inline Records distinctDraws(int count) {
  Records records;
  for (int i = 0; i < count; ++i) {
    Record record = {"01", twoDigits(28 - i), "2026"};
    for (int ball = 1; ball <= 5; ++ball) record.push_back(twoDigits(i * 5 + ball));
    record.insert(record.end(), {twoDigits(76 + i), "2"});
    records.push_back(record);
  }
  return records;
}

/// The same draws as Double Play draws behind a main draw of 91 to 96.
inline Records distinctDoublePlays(int count) {
  Records records = distinctDraws(count);
  for (Record& record : records) {
    const std::initializer_list<std::string> mainDraw = {"91", "92", "93", "94", "95", "96", "x", "y"};
    record.insert(record.begin() + 3, mainDraw);
  }
  return records;
}

/// The number of the runtime error that `action` raises, 0 where it raises none.
template <typename Action>
int errorOf(Action action) {
  try {
    action();
    return 0;
  } catch (const RuntimeError& error) {
    return error.number();
  }
}

}  // namespace tallywick::test
