// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/sequential_reader.h"

#include "core/data_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>

namespace tallywick {

namespace {

bool endsLine(char letter) {
  return letter == '\n' || letter == '\r';
}

}  // namespace

SequentialReader::SequentialReader(const DataFolder& folder, std::string_view written, Reading reading) {
  const std::filesystem::path file = folder.resolve(written);
  name_ = textOf(file);
  try {
    open(file, reading);
  } catch (const RuntimeError& error) {
    // A file whose folder is missing is missing like any other.
    if (!error.is(ErrorNumber::pathNotFound)) throw;
    throw RuntimeError(ErrorNumber::fileNotFound, error.where());
  }
}

SequentialReader::SequentialReader(std::string_view text, std::string name)
    : text_(text), name_(std::move(name)) {}

void SequentialReader::open(const std::filesystem::path& file, Reading reading) {
  if (reading == Reading::whole) {
    bytes_ = os::readFile(file);
    text_ = bytes_.view();
  } else {
    keepsPieces_ = reading == Reading::asNeeded;
    file_.emplace(file);
    readOn();
  }
}

std::string_view SequentialReader::field() {
  const std::size_t begin = position_;
  std::string_view field = cutField();
  while (isOpen() && atEnd()) {
    position_ = begin;
    readOn();
    field = cutField();
  }
  return field;
}

/// The next field as far as text_ goes.
std::string_view SequentialReader::cutField() {
  const char* const begin = text_.data();
  const char* const end = begin + text_.size();
  const char* here = begin + position_;
  if (here == end) throw RuntimeError(ErrorNumber::inputPastEnd, name_);
  while (here != end && *here == ' ') ++here;
  const char* first = here;
  const char* last = here;
  if (here != end && *here == '"') {
    first = ++here;
    while (here != end && *here != '"' && !endsLine(*here)) ++here;
    last = here;
    // What is between the closing quote and the separator belongs to no field.
    while (here != end && *here != ',' && !endsLine(*here)) ++here;
  } else {
    while (here != end && *here != ',' && !endsLine(*here)) ++here;
    last = here;
  }
  endedByComma_ = here != end && *here == ',';
  if (here != end) {
    const bool returned = *here++ == '\r';
    if (returned && here != end && *here == '\n') ++here;
  }
  position_ = static_cast<std::size_t>(here - begin);
  return {first, static_cast<std::size_t>(last - first)};
}

const FieldPlaces& SequentialReader::cutRecord(std::size_t fieldCount) {
  if (isOpen() && rest().size() <= 2 * RecordShape::maxLength) {
    readOn();
    const RecordShape* shape = shapes_.find(rest(), fieldCount);
    if (shape != nullptr) return skip(*shape);
  }
  recordBegin_ = position_;
  while (!cutFields(fieldCount)) {
    position_ = recordBegin_;
    readOn();
    recordBegin_ = position_;
  }
  shapes_.learn(text_.substr(recordBegin_, position_ - recordBegin_), std::span(cut_.of).first(fieldCount));
  return cut_;
}

/// False where the record may go on beyond text_.
bool SequentialReader::cutFields(std::size_t fieldCount) {
  for (std::size_t i = 0; i < fieldCount; ++i) {
    if (atEnd()) {
      if (isOpen()) return false;
      // The file ends behind a comma: what follows it is an empty field, as it is before a line end.
      if (i > 0 && i + 1 == fieldCount && endedByComma_) {
        cut_.of[i] = {position_ - recordBegin_, 0};
        continue;
      }
      throw RuntimeError(ErrorNumber::inputPastEnd, join(name_, ", record ", std::to_string(recordNumber_),
                                                         ": field ", std::to_string(i + 1), " of ",
                                                         std::to_string(fieldCount), " is beyond the end"));
    }
    const std::string_view field = cutField();
    cut_.of[i] = {static_cast<std::size_t>(field.data() - text_.data()) - recordBegin_, field.size()};
  }
  return !isOpen() || !atEnd();
}

/// Reads another piece behind what is not read yet. At the end of the file the reader is no longer open.
void SequentialReader::readOn() {
  constexpr std::size_t pieceSize = std::size_t{1} << 16;
  const std::size_t kept = rest().size();
  if (keepsPieces_) {
    std::vector<char> next(kept + pieceSize);
    std::copy_n(rest().data(), kept, next.data());
    before_.push_back(std::exchange(piece_, std::move(next)));
  } else {
    if (position_ > 0) std::memmove(piece_.data(), rest().data(), kept);
    if (piece_.size() - kept < pieceSize / 2) piece_.resize(std::max(pieceSize, 2 * piece_.size()));
  }
  const std::size_t got = file_->read(piece_.data() + kept, piece_.size() - kept);
  if (got == 0) file_.reset();
  text_ = {piece_.data(), kept + got};
  position_ = 0;
}

}  // namespace tallywick
