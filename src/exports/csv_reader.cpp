// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/csv_reader.h"

#include "core/text.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace tallywick::exports {

namespace {

std::string plainName(std::string_view name) {
  std::string plain = lowered(name);
  std::erase_if(plain, [](char letter) { return letter == ' ' || letter == '_' || letter == '-'; });
  return plain;
}

}  // namespace

std::string_view CsvReader::Row::field(std::size_t column) const {
  return column < fields.size() ? trimmed(fields[column]) : std::string_view();
}

CsvReader::CsvReader(Source source) : source_(std::move(source)), piece_(longestRow) {
  readNames();
}

CsvReader::CsvReader(std::string_view text)
    : CsvReader([text](char* to, std::size_t size) mutable {
        const std::size_t count = text.copy(to, size);
        text.remove_prefix(count);
        return count;
      }) {}

std::optional<std::size_t> CsvReader::column(std::initializer_list<std::string_view> names) const {
  for (std::string_view name : names) {
    const auto found = std::ranges::find(names_, plainName(name));
    if (found != names_.end()) return static_cast<std::size_t>(found - names_.begin());
  }
  return std::nullopt;
}

bool CsvReader::next(Row& row) {
  while (refill()) {
    readRow(row);
    if (row.fields.size() > 1 || !row.field(0).empty()) return true;
  }
  return false;
}

void CsvReader::readNames() {
  for (const char letter : byteOrderMark) {
    if (!skip(letter)) break;
  }
  Row row;
  if (!next(row)) return;
  names_ = std::move(row.fields);
  std::ranges::transform(names_, names_.begin(), plainName);
}

void CsvReader::readRow(Row& row) {
  row.line = rowLine_ = line_;
  row.isCut = false;
  rowLength_ = 0;
  std::size_t count = 0;
  do {
    if (row.fields.size() == count) row.fields.emplace_back();
    readField(row.fields[count++], row);
  } while (skip(','));
  row.fields.resize(count);
  const bool carriageReturn = skip('\r');
  if (skip('\n') || carriageReturn) ++line_;
}

void CsvReader::readField(std::string& field, Row& row) {
  field.clear();
  while (skip(' ')) {
  }
  const bool isQuoted = skip('"');
  if (isQuoted) readQuoted(field, row);
  // What is between the closing quote and the comma belongs to no field.
  while (!isEndOfField()) {
    const char letter = take();
    if (!isQuoted) field += letter;
  }
}

/// A doubled quote is one.
void CsvReader::readQuoted(std::string& field, Row& row) {
  while (refill()) {
    const char letter = take();
    if (letter == '"' && !skip('"')) return;
    if (letter == '\n') ++line_;
    field += letter;
  }
  row.isCut = true;
}

bool CsvReader::refill() {
  if (position_ < size_) return true;
  position_ = 0;
  size_ = source_(piece_.data(), piece_.size());
  return size_ > 0;
}

bool CsvReader::isEndOfField() {
  return !refill() || std::string_view(",\r\n").find(piece_[position_]) != std::string_view::npos;
}

char CsvReader::take() {
  if (++rowLength_ > longestRow) {
    throw std::runtime_error(join("line ", std::to_string(rowLine_), " is longer than ",
                                  std::to_string(longestRow), " characters"));
  }
  return piece_[position_++];
}

bool CsvReader::skip(char letter) {
  if (!refill() || piece_[position_] != letter) return false;
  take();
  return true;
}

}  // namespace tallywick::exports
