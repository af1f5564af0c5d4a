// SPDX-License-Identifier: GPL-3.0-or-later
// The sequential reader with every number of fields that the files' records have. The first byte chooses the
// number of fields, the rest is the file.
#include "core/calendar.h"
#include "core/draws.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/winnings.h"
#include "fuzz/property.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace tallywick::fuzz {

namespace {

using Record = std::vector<std::string>;

struct Records {
  std::vector<Record> whole;
  /// Whether the last record ends beyond the file.
  bool torn = false;

  bool operator==(const Records&) const = default;
};

/// The rules for fields and for the end of a file, a character at a time.
class PlainReader {
 public:
  PlainReader(std::string_view text, std::size_t fields) : rest_(text), fields_(fields) {}

  Records records() {
    Records records;
    while (!rest_.empty()) {
      Record record;
      while (record.size() < fields_ && !rest_.empty()) record.push_back(field());
      if (record.size() + 1 == fields_ && endedByComma_) record.emplace_back();
      records.torn = record.size() < fields_;
      if (!records.torn) records.whole.push_back(std::move(record));
    }
    return records;
  }

 private:
  std::string field() {
    while (rest_.starts_with(' ')) rest_.remove_prefix(1);
    std::string field;
    const bool quoted = rest_.starts_with('"');
    if (quoted) {
      rest_.remove_prefix(1);
      field = takeUntil("\"\r\n");
    }
    const std::string bare = takeUntil(",\r\n");
    if (!quoted) field = bare;
    endedByComma_ = rest_.starts_with(',');
    rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : rest_.empty() ? 0 : 1);
    return field;
  }

  std::string takeUntil(std::string_view ends) {
    std::string taken(rest_.substr(0, rest_.find_first_of(ends)));
    rest_.remove_prefix(taken.size());
    return taken;
  }

  std::string_view rest_;
  std::size_t fields_;
  bool endedByComma_ = false;
};

template <std::size_t Count>
Records readAll(SequentialReader& reader) {
  Records records;
  try {
    forEachRecordView<Count>(reader, [&](const RecordView<Count>& view) {
      const Fields<Count> fields = view.fields();
      records.whole.emplace_back(fields.begin(), fields.end());
    });
  } catch (const RuntimeError& error) {
    require(error.is(ErrorNumber::inputPastEnd), "a file that can be read raises nothing but error 62");
    records.torn = true;
  }
  require(reader.recordNumber() == records.whole.size() + (records.torn ? 1 : 0),
          "each record is counted once");
  return records;
}

/// The records with the pair in one of their fields.
template <std::size_t Count>
std::vector<Record> readWith(std::string_view text, std::string_view pair) {
  std::vector<Record> found;
  const auto add = [&](const RecordView<Count>& view) {
    const Fields<Count> fields = view.fields();
    found.emplace_back(fields.begin(), fields.end());
  };
  SequentialReader reader(text, "input");
  reader.lookFor({pair[0], pair[1], (std::uint32_t{1} << Count) - 1});
  try {
    while (!reader.atEnd()) {
      const RecordView<Count> view = reader.recordView<Count>();
      if (std::ranges::count(view.fields(), pair) > 0) add(view);
      reader.forEachWanted<Count>(add);
    }
  } catch (const RuntimeError&) {
    // A file may end inside a record.
  }
  return found;
}

template <std::size_t Count>
void check(std::string_view text) {
  Records expected = PlainReader(text, Count).records();
  SequentialReader memory(text, "input");
  require(readAll<Count>(memory) == expected, "guessing by shapes changes no record");
  const std::string pair = expected.whole.empty() ? "07" : expected.whole.back().back();
  if (pair.size() != 2) return;
  std::erase_if(expected.whole, [&](const Record& record) { return std::ranges::count(record, pair) == 0; });
  require(readWith<Count>(text, pair) == expected.whole, "looking for a pair by shapes misses no record");
}

constexpr std::array checks = {check<1>,          check<winningsFields>, check<calendarFields>,
                               check<playFields>, check<drawFields>,     check<doublePlayFields>};

}  // namespace

}  // namespace tallywick::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallywick::fuzz;
  if (size == 0) return 0;
  const std::string_view text = textOf(data + 1, size - 1);
  checks[data[0] % checks.size()](text);
  return 0;
}
