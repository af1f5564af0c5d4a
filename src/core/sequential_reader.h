// Reads the comma-separated text files of the record book, field by field, with the runtime's rules for
// fields and for the end of a file.
#pragma once

#include "core/os.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tallywick {

class DataFolder;

/// The fields of one record, as views into the reader's copy of the file: valid as long as the reader lives.
template <std::size_t Count>
using Fields = std::array<std::string_view, Count>;

/// A sequential file, opened by reading it whole.
///
/// A field goes up to the next comma or line end (CR LF, LF or CR). Blanks before it are skipped; double
/// quotes around it are dropped, and commas between them belong to the field. A record is so many fields,
/// wherever the lines end: a short line is filled up from the next one. Reading a field at the end of the
/// file is error 62.
class SequentialReader {
 public:
  /// Opens the file that `written` names. Error 53 where it or its folder is missing, else 70 or 75.
  SequentialReader(const DataFolder& folder, std::string_view written);
  /// Reads from memory; `name` stands for the file in errors.
  SequentialReader(std::string_view text, std::string name);

  /// Whether the last field has been read. Ask before each record: nothing but a record at the end is an
  /// error.
  bool atEnd() const { return position_ == text_.size(); }

  std::string_view field();

  template <std::size_t Count>
  Fields<Count> record() {
    Fields<Count> fields;
    readRecord(fields);
    return fields;
  }

  /// Fills `fields` from the next record; for records whose size is not known at compile time.
  void readRecord(std::span<std::string_view> fields);

  /// How many records have been begun.
  std::size_t recordNumber() const { return recordNumber_; }
  const std::string& name() const { return name_; }
  /// The whole of what is read.
  std::string_view text() const { return text_; }

 private:
  /// The shape of the record read last: where its separators stand and where its digits. The next record
  /// mostly has the same one; then its fields are at the same places and need no second look at every
  /// character.
  struct Shape {
    static constexpr std::size_t maxWords = 16;
    static constexpr std::size_t maxFields = 18;
    std::size_t fieldCount = 0;
    std::size_t length = 0;
    std::size_t words = 0;
    std::array<std::uint64_t, maxWords> mask{};
    std::array<std::uint64_t, maxWords> value{};
    std::array<std::uint8_t, maxFields> start{};
    std::array<std::uint8_t, maxFields> size{};
  };

  bool hasLastShape(std::size_t fieldCount) const;
  void learnShape(std::size_t begin, std::span<const std::string_view> fields);

  os::FileBytes bytes_;
  std::string_view text_;
  std::string name_;
  std::size_t position_ = 0;
  std::size_t recordNumber_ = 0;
  Shape shape_;
};

/// Gives every record of the file to `use`.
template <std::size_t Count, typename Use>
void forEachRecord(SequentialReader& reader, Use use) {
  while (!reader.atEnd()) use(reader.record<Count>());
}

/// Gives every record but the last one to `use`: the displays read the first record, then, while the file is
/// not at its end, use the record in hand and read the next. An empty file is error 62.
template <std::size_t Count, typename Use>
void forEachRecordButLast(SequentialReader& reader, Use use) {
  Fields<Count> inHand = reader.record<Count>();
  while (!reader.atEnd()) {
    use(inHand);
    inHand = reader.record<Count>();
  }
}

}  // namespace tallywick
