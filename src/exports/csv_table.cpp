// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/csv_table.h"

#include "core/text.h"

#include <algorithm>
#include <utility>

namespace tallywick::exports {

namespace {

/// Cuts a text into rows of fields.
class Cutter {
 public:
  explicit Cutter(std::string_view text) : rest_(text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (rest_.starts_with(byteOrderMark)) rest_.remove_prefix(byteOrderMark.size());
  }

  bool atEnd() const { return rest_.empty(); }

  CsvTable::Row row() {
    CsvTable::Row row = {line_, {}};
    do {
      row.fields.push_back(field());
    } while (take(','));
    take('\r');
    if (take('\n')) ++line_;
    return row;
  }

 private:
  std::string field() {
    const std::size_t blanks = rest_.find_first_not_of(' ');
    if (blanks == std::string_view::npos || rest_[blanks] != '"') return bareField();
    rest_.remove_prefix(blanks + 1);
    std::string field = quotedField();
    bareField();  // what stands between the closing quote and the comma belongs to no field
    return field;
  }

  std::string bareField() {
    const std::string_view field = rest_.substr(0, rest_.find_first_of(",\r\n"));
    rest_.remove_prefix(field.size());
    return std::string(field);
  }

  /// A doubled quote is one; a quote that is never closed goes to the end of the text.
  std::string quotedField() {
    std::string field;
    while (!rest_.empty()) {
      const char letter = rest_.front();
      rest_.remove_prefix(1);
      if (letter == '"' && !take('"')) break;
      if (letter == '\n') ++line_;
      field += letter;
    }
    return field;
  }

  bool take(char letter) {
    if (!rest_.starts_with(letter)) return false;
    rest_.remove_prefix(1);
    return true;
  }

  std::string_view rest_;
  std::size_t line_ = 1;
};

std::string plainName(std::string_view name) {
  std::string plain = lowered(name);
  std::erase_if(plain, [](char letter) { return letter == ' ' || letter == '_' || letter == '-'; });
  return plain;
}

}  // namespace

std::string_view CsvTable::Row::field(std::size_t column) const {
  return column < fields.size() ? trimmed(fields[column]) : std::string_view();
}

CsvTable::CsvTable(std::string_view text) {
  Cutter cutter(text);
  while (!cutter.atEnd()) {
    Row row = cutter.row();
    if (row.fields.size() == 1 && row.field(0).empty()) continue;
    if (names_.empty()) {
      names_ = std::move(row.fields);
      std::ranges::transform(names_, names_.begin(), plainName);
    } else {
      rows_.push_back(std::move(row));
    }
  }
}

std::optional<std::size_t> CsvTable::column(std::initializer_list<std::string_view> names) const {
  for (std::string_view name : names) {
    const auto found = std::ranges::find(names_, plainName(name));
    if (found != names_.end()) return static_cast<std::size_t>(found - names_.begin());
  }
  return std::nullopt;
}

}  // namespace tallywick::exports
