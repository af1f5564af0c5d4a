// SPDX-License-Identifier: GPL-3.0-or-later
// Guesses where the fields of a record are from the records before it: nearly all records of a file look
// alike but for their digits, and then nobody need look at every character.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

namespace tallywick {

/// A field's first character, from the start of its record, and how many there are.
struct FieldPlace {
  std::size_t start;
  std::size_t size;
};

inline constexpr std::size_t maxRecordFields = 18;

/// Where the fields of a record are.
struct FieldPlaces {
  std::array<FieldPlace, maxRecordFields> of{};
  /// Bit i is set where field i is known to have two characters, as nearly all numbers have.
  std::uint32_t pairs = 0;
};

/// Where the separators of a record are and where its digits.
class RecordShape {
 public:
  /// Records that are longer than this have no shape.
  static constexpr std::size_t maxLength = 128;

  /// `record` is a whole record with its last separator, which must be a comma or LF.
  RecordShape(std::string_view record, std::span<const FieldPlace> places);

  std::size_t fieldCount() const { return fieldCount_; }

  /// Whether the record that begins `text` looks like this one, and something follows it.
  bool fits(std::string_view text) const {
    if (text.size() <= blocks_ * sizeof(Block)) return false;
    Words differences{};
    for (std::size_t i = 0; i < blocks_; ++i) {
      const char* const here = text.data() + i * sizeof(Block);
      differences |= (wordsAt(here) & mask_[i][0]) ^ value_[i][0];
      differences |= (wordsAt(here + sizeof(Words)) & mask_[i][1]) ^ value_[i][1];
    }
    return (differences[0] | differences[1]) == 0;
  }

  std::size_t length() const { return length_; }
  const FieldPlaces& places() const { return places_; }

  /// Which of the learned shapes follow this one, the usual one and another.
  RecordShape* follower = nullptr;
  RecordShape* otherFollower = nullptr;

 private:
  /// Two words that the processor compares at once.
  using Words [[gnu::vector_size(16)]] = std::uint64_t;
  using Block = std::array<Words, 2>;

  static Words wordsAt(const char* text) {
    Words words;
    std::memcpy(&words, text, sizeof words);
    return words;
  }

  std::size_t fieldCount_;
  std::size_t length_;
  std::size_t blocks_;
  std::array<Block, maxLength / sizeof(Block)> mask_{};
  std::array<Block, maxLength / sizeof(Block)> value_{};
  FieldPlaces places_{};
};

/// The shapes of a file's records, as far as they are worth knowing.
class RecordShapes {
 public:
  RecordShapes() = default;
  RecordShapes(RecordShapes&&) = default;
  RecordShapes& operator=(RecordShapes&&) = default;
  RecordShapes(const RecordShapes&) = delete;
  RecordShapes& operator=(const RecordShapes&) = delete;

  /// The shape of the record that begins `text`; null where none is known.
  const RecordShape* find(std::string_view text, std::size_t fieldCount) {
    if (!isFor(fieldCount)) return nullptr;
    RecordShape* const shape = findAfter(*last_, text);
    if (shape != nullptr) {
      last_ = shape;
      ++found_;
    }
    return shape;
  }

  /// Gives the start of each record at the front of `text` and the places of its fields to `use`, as long as
  /// the shapes are known. `text` becomes what is left.
  template <typename Use>
  void forEachKnown(std::string_view& text, std::size_t fieldCount, Use use) {
    if (!isFor(fieldCount)) return;
    std::size_t count = 0;
    RecordShape* last = last_;
    while (RecordShape* const shape = findAfter(*last, text)) {
      use(text.data(), shape->places());
      text.remove_prefix(shape->length());
      last = shape;
      ++count;
    }
    last_ = last;
    found_ += count;
  }

  /// Takes note of a record whose shape was not known.
  void learn(std::string_view record, std::span<const FieldPlace> places);

 private:
  bool isFor(std::size_t fieldCount) const { return last_ != nullptr && last_->fieldCount() == fieldCount; }
  /// The shape of the record that begins `text` and follows one of the shape `last`.
  RecordShape* findAfter(RecordShape& last, std::string_view text) {
    if (last.follower->fits(text)) return last.follower;
    if (last.otherFollower->fits(text)) return last.otherFollower;
    return findOther(last, text);
  }
  RecordShape* findOther(RecordShape& last, std::string_view text);

  /// All of one number of fields. Has its room from the start, so that its elements never move.
  std::vector<RecordShape> shapes_;
  /// That of the last record; null where none is known.
  RecordShape* last_ = nullptr;
  std::size_t found_ = 0;
  std::size_t learned_ = 0;
};

}  // namespace tallywick
