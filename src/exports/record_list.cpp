// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/record_list.h"

#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tallywick::exports {

namespace {

/// The next record's fields; none where the file ends within it.
std::vector<std::string> nextFields(SequentialReader& reader, std::size_t count) {
  std::vector<std::string> fields;
  try {
    while (fields.size() < count) fields.emplace_back(reader.field());
  } catch (const RuntimeError&) {
    fields.clear();
  }
  return fields;
}

std::optional<Day> dayOfFields(const std::vector<std::string>& fields) {
  return parseDay(fields[0], fields[1], fields[2]);
}

void append(std::string& text, const std::vector<std::string>& fields) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) text += ',';
    // A quote within quotes would end the field.
    const std::string_view quote = fields[i].find('"') == std::string::npos ? "\"" : "";
    text.append(quote).append(fields[i]).append(quote);
  }
  text += "\r\n";
}

}  // namespace

RecordList::RecordList(std::string_view text, std::size_t fieldCount) : read_(text) {
  SequentialReader reader(read_, {});
  while (!reader.atEnd()) {
    std::vector<std::string> fields = nextFields(reader, fieldCount);
    if (fields.empty()) {
      isCut_ = true;
      break;
    }
    const std::optional<Day> day = dayOfFields(fields);
    records.push_back({std::move(fields), day});
  }
  readRecords_ = records;
}

void RecordList::sort() {
  std::vector<std::pair<std::optional<Day>, FileRecord>> keyed;
  keyed.reserve(records.size());
  for (FileRecord& record : records) {
    const std::optional<Day> key = record.day || keyed.empty() ? record.day : keyed.back().first;
    keyed.emplace_back(key, std::move(record));
  }
  // Without a date and with none before it a record stays in front.
  std::ranges::stable_sort(keyed, [](const auto& left, const auto& right) {
    if (!left.first || !right.first) return !left.first && right.first.has_value();
    return *left.first > *right.first;
  });
  std::ranges::transform(keyed, records.begin(), [](auto& entry) { return std::move(entry.second); });
}

std::string RecordList::text() const {
  const bool isSame = std::ranges::equal(records, readRecords_, {}, &FileRecord::fields, &FileRecord::fields);
  if (isSame && !isCut_) return read_;
  std::string text;
  for (const FileRecord& record : records) append(text, record.fields);
  return text;
}

FileRecord recordFor(Day day, std::vector<std::string> fields) {
  DayFields date = fieldsOf(day);
  fields.insert(fields.begin(), {std::move(date.month), std::move(date.day), std::move(date.year)});
  return {std::move(fields), day};
}

}  // namespace tallywick::exports
