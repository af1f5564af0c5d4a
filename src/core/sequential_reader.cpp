#include "core/sequential_reader.h"

#include "core/data_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"

#include <cstring>
#include <utility>

namespace tallywick {

namespace {

bool endsLine(char letter) {
  return letter == '\n' || letter == '\r';
}

/// A file whose folder is missing is missing like any other.
os::FileBytes readExisting(const std::filesystem::path& file) {
  try {
    return os::readFile(file);
  } catch (const RuntimeError& error) {
    if (!error.is(ErrorNumber::pathNotFound)) throw;
    throw RuntimeError(ErrorNumber::fileNotFound, error.where());
  }
}

}  // namespace

SequentialReader::SequentialReader(const DataFolder& folder, std::string_view written) {
  const std::filesystem::path file = folder.resolve(written);
  bytes_ = readExisting(file);
  text_ = bytes_.view();
  name_ = file.string();
}

SequentialReader::SequentialReader(std::string_view text, std::string name)
    : text_(text), name_(std::move(name)) {}

std::string_view SequentialReader::field() {
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
    // What stands between the closing quote and the separator belongs to no field.
    while (here != end && *here != ',' && !endsLine(*here)) ++here;
  } else {
    while (here != end && *here != ',' && !endsLine(*here)) ++here;
    last = here;
  }
  if (here != end) {
    const bool returned = *here++ == '\r';
    if (returned && here != end && *here == '\n') ++here;
  }
  position_ = static_cast<std::size_t>(here - begin);
  return {first, static_cast<std::size_t>(last - first)};
}

void SequentialReader::readRecord(std::span<std::string_view> fields) {
  ++recordNumber_;
  const char* const begin = text_.data() + position_;
  if (hasLastShape(fields.size())) {
    for (std::size_t i = 0; i < fields.size(); ++i) fields[i] = {begin + shape_.start[i], shape_.size[i]};
    position_ += shape_.length;
    return;
  }
  const std::size_t started = position_;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (atEnd()) {
      throw RuntimeError(
          ErrorNumber::inputPastEnd,
          join(name_, ", record ", std::to_string(recordNumber_), ": field ", std::to_string(i + 1), " of ",
               std::to_string(fields.size()), " is beyond the end"));
    }
    fields[i] = field();
  }
  learnShape(started, fields);
}

bool SequentialReader::hasLastShape(std::size_t fieldCount) const {
  if (shape_.fieldCount != fieldCount || text_.size() - position_ < shape_.words * sizeof(std::uint64_t)) {
    return false;
  }
  const char* const begin = text_.data() + position_;
  std::uint64_t differences = 0;
  for (std::size_t i = 0; i < shape_.words; ++i) {
    std::uint64_t word = 0;
    std::memcpy(&word, begin + i * sizeof word, sizeof word);
    differences |= (word & shape_.mask[i]) ^ shape_.value[i];
  }
  return differences == 0;
}

void SequentialReader::learnShape(std::size_t begin, std::span<const std::string_view> fields) {
  shape_.fieldCount = 0;
  const std::size_t length = position_ - begin;
  constexpr std::size_t wordSize = sizeof(std::uint64_t);
  // A lone CR may be followed by LF the next time, and a record that the end of the file ends has no
  // separator.
  const char separator = text_[position_ - 1];
  if (separator != ',' && separator != '\n') return;
  if (length > Shape::maxWords * wordSize || fields.size() > Shape::maxFields) return;

  std::array<unsigned char, Shape::maxWords * wordSize> mask{};
  std::array<unsigned char, Shape::maxWords * wordSize> value{};
  for (std::size_t i = 0; i < length; ++i) {
    const char letter = text_[begin + i];
    // All digits share their upper four bits, and no separator has these.
    mask[i] = letter >= '0' && letter <= '9' ? 0xF0 : 0xFF;
    value[i] = static_cast<unsigned char>(letter) & mask[i];
  }
  shape_.words = (length + wordSize - 1) / wordSize;
  std::memcpy(shape_.mask.data(), mask.data(), mask.size());
  std::memcpy(shape_.value.data(), value.data(), value.size());
  for (std::size_t i = 0; i < fields.size(); ++i) {
    shape_.start[i] = static_cast<std::uint8_t>(fields[i].data() - (text_.data() + begin));
    shape_.size[i] = static_cast<std::uint8_t>(fields[i].size());
  }
  shape_.length = length;
  shape_.fieldCount = fields.size();
}

}  // namespace tallywick
