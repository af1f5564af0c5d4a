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
using FieldPlaces = std::array<FieldPlace, maxRecordFields>;

/// Where the separators of a record are and where its digits.
class RecordShape {
 public:
  /// Records that are longer than this have no shape.
  static constexpr std::size_t maxLength = 128;

  /// `record` is a whole record with its last separator, which must be a comma or LF.
  RecordShape(std::string_view record, std::span<const FieldPlace> places);

  /// Whether the record that begins `text` looks like this one, and something follows it.
  bool fits(std::string_view text, std::size_t fieldCount) const {
    if (fieldCount != fieldCount_ || text.size() <= blocks_ * sizeof(Block)) return false;
    std::uint64_t differences = 0;
    for (std::size_t i = 0; i < blocks_; ++i) differences |= differencesIn(i, text.data());
    return differences == 0;
  }

  std::size_t length() const { return length_; }
  const FieldPlaces& places() const { return places_; }

  /// Which of the learned shapes followed this one the last time.
  std::size_t follower = 0;

 private:
  using Block = std::array<std::uint64_t, 4>;

  std::uint64_t differencesIn(std::size_t block, const char* text) const {
    Block read;
    std::memcpy(&read, text + block * sizeof(Block), sizeof(Block));
    std::uint64_t differences = 0;
    for (std::size_t i = 0; i < read.size(); ++i) {
      differences |= (read[i] & mask_[block][i]) ^ value_[block][i];
    }
    return differences;
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
  /// The shape of the record that begins `text`; null where none is known.
  const RecordShape* find(std::string_view text, std::size_t fieldCount) {
    if (shapes_.empty()) return nullptr;
    const std::size_t guess = shapes_[last_].follower;
    if (!shapes_[guess].fits(text, fieldCount)) return findOther(text, fieldCount);
    return found(guess);
  }

  /// Takes note of a record whose shape was not known.
  void learn(std::string_view record, std::span<const FieldPlace> places);

 private:
  const RecordShape* found(std::size_t index) {
    ++found_;
    last_ = index;
    return &shapes_[index];
  }
  const RecordShape* findOther(std::string_view text, std::size_t fieldCount);

  std::vector<RecordShape> shapes_;
  std::size_t last_ = 0;
  std::size_t found_ = 0;
  std::size_t learned_ = 0;
};

}  // namespace tallywick
