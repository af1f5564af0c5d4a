// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the comma-separated text files of the record book, field by field, with the runtime's rules for
// fields and for the end of a file.
#pragma once

#include "core/os.h"
#include "core/record_shapes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class DataFolder;

/// The fields of one record.
template <std::size_t Count>
using Fields = std::array<std::string_view, Count>;

/// A record in its place in the reader's text; a field is cut out when it is asked for.
template <std::size_t Count>
class RecordView {
 public:
  RecordView(const char* begin, const FieldPlaces& places) : begin_(begin), places_(places) {}
  std::string_view operator[](std::size_t index) const { return {at(index), places_.of[index].size}; }
  /// The first character of a field.
  const char* at(std::size_t index) const { return begin_ + places_.of[index].start; }
  /// Whether the `count` fields from `first` on are known to have two characters each.
  bool havePairs(std::size_t first, std::size_t count) const {
    const std::uint32_t asked = ((std::uint32_t{1} << count) - 1) << first;
    return (places_.pairs & asked) == asked;
  }
  Fields<Count> fields() const {
    Fields<Count> fields;
    for (std::size_t i = 0; i < Count; ++i) fields[i] = (*this)[i];
    return fields;
  }

 private:
  const char* begin_;
  const FieldPlaces& places_;
};

/// A sequential file.
///
/// A field goes up to the next comma or line end (CR LF, LF or CR). Blanks before it are skipped; double
/// quotes around it are dropped, and commas between them belong to the field. A record is so many fields,
/// wherever the lines end: a short line is filled up from the next one. Reading a field at the end of the
/// file is error 62.
class SequentialReader {
 public:
  enum class Reading {
    whole,     ///< by one read: fields are views that stay valid as long as the reader lives
    asNeeded,  ///< the same for a file that is seldom read to its end; text() has a piece of it
    inPieces   ///< for one pass over a file of any size: fields are valid until the next record is read
  };

  /// Opens the file that `written` names. Error 53 where it or its folder is missing, else 70 or 75.
  SequentialReader(const DataFolder& folder, std::string_view written, Reading reading = Reading::whole);
  /// Reads from memory; errors name `name` in the place of a file.
  SequentialReader(std::string_view text, std::string name);

  /// Whether the last field has been read. Ask before each record: nothing but a record at the end is an
  /// error.
  bool atEnd() const { return position_ == text_.size(); }

  std::string_view field();

  template <std::size_t Count>
  Fields<Count> record() {
    return recordView<Count>().fields();
  }

  /// The next record; valid until another one is read.
  template <std::size_t Count>
  RecordView<Count> recordView() {
    static_assert(Count <= maxRecordFields);
    const FieldPlaces& places = nextRecord(Count);
    return {text_.data() + recordBegin_, places};
  }

  /// Gives the next records to `use`, as long as they look like others before them; maybe none.
  template <std::size_t Count, typename Use>
  void forEachAlike(Use use) {
    std::string_view left = rest();
    shapes_.forEachKnown(left, Count, [&](const char* begin, const FieldPlaces& places) {
      ++recordNumber_;
      use(RecordView<Count>(begin, places));
    });
    position_ = text_.size() - left.size();
  }

  /// What forEachWanted() looks for; to be called before the first record is read.
  void lookFor(const WantedPair& wanted) { shapes_.lookFor(wanted); }

  /// The same as forEachAlike(), but `use` gets only the records that have the wanted pair.
  template <std::size_t Count, typename Use>
  void forEachWanted(Use use) {
    std::string_view left = rest();
    recordNumber_ += shapes_.forEachWanted(left, Count, [&](const char* begin, const FieldPlaces& places) {
      use(RecordView<Count>(begin, places));
    });
    position_ = text_.size() - left.size();
  }

  /// How many records have been begun.
  std::size_t recordNumber() const { return recordNumber_; }
  /// How much of text() has been read, in bytes.
  std::size_t position() const { return position_; }
  const std::string& name() const { return name_; }
  /// The whole of what is read, where it is read as a whole.
  std::string_view text() const { return text_; }

 private:
  void open(const std::filesystem::path& file, Reading reading);

  const FieldPlaces& nextRecord(std::size_t fieldCount) {
    ++recordNumber_;
    const RecordShape* shape = shapes_.find(rest(), fieldCount);
    return shape != nullptr ? skip(*shape) : cutRecord(fieldCount);
  }
  const FieldPlaces& skip(const RecordShape& shape) {
    recordBegin_ = position_;
    position_ += shape.length();
    return shape.places();
  }
  const FieldPlaces& cutRecord(std::size_t fieldCount);
  bool cutFields(std::size_t fieldCount);
  std::string_view cutField();

  std::string_view rest() const { return text_.substr(position_); }
  /// Whether more may follow than text_ contains.
  bool isOpen() const { return file_.has_value(); }
  void readOn();

  std::optional<os::InputFile> file_;
  std::vector<char> piece_;
  /// The pieces before it, where fields stay valid.
  std::vector<std::vector<char>> before_;
  bool keepsPieces_ = false;
  os::FileBytes bytes_;
  std::string_view text_;
  std::string name_;
  std::size_t position_ = 0;
  std::size_t recordBegin_ = 0;
  bool endedByComma_ = false;
  std::size_t recordNumber_ = 0;
  RecordShapes shapes_;
  FieldPlaces cut_{};
};

/// Gives every record of the file to `use`.
template <std::size_t Count, typename Use>
void forEachRecord(SequentialReader& reader, Use use) {
  while (!reader.atEnd()) use(reader.record<Count>());
}

/// The same without cutting fields that nobody asks for.
template <std::size_t Count, typename Use>
void forEachRecordView(SequentialReader& reader, Use use) {
  while (!reader.atEnd()) {
    use(reader.recordView<Count>());
    reader.forEachAlike<Count>(use);
  }
}

/// Kept slip: gives every record but the last one to `use`; the displays read the first record, then, while
/// the file is not at its end, use the record in hand and read the next. An empty file is error 62.
template <std::size_t Count, typename Use>
void forEachRecordButLast(SequentialReader& reader, Use use) {
  while (true) {
    const RecordView<Count> inHand = reader.recordView<Count>();
    if (reader.atEnd()) return;
    use(inHand);
    // A record that looks like others has something behind it.
    reader.forEachAlike<Count>(use);
  }
}

}  // namespace tallywick
