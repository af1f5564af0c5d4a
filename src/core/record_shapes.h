// SPDX-License-Identifier: GPL-3.0-or-later
// Guesses where the fields of a record are from the records before it: nearly all records of a file look
// alike but for their digits, and then nobody need look at every character.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>
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

/// A number of two characters that is looked for in some fields.
struct WantedPair {
  char first = 0;
  char second = 0;
  /// Bit i is set where field i is looked at.
  std::uint32_t fields = 0;
};

/// Where the separators of a record are and where its digits.
class RecordShape {
 public:
  /// Records that are longer than this have no shape.
  static constexpr std::size_t maxLength = 128;

  /// `record` is a whole record with its last separator, which must be a comma or LF.
  RecordShape(std::string_view record, std::span<const FieldPlace> places, const WantedPair& wanted);

  std::size_t fieldCount() const { return fieldCount_; }
  std::size_t length() const { return length_; }
  const FieldPlaces& places() const { return places_; }
  char lastCharacter() const { return lastCharacter_; }
  /// How many pieces of the text are compared.
  std::size_t pieces() const { return (length_ + sizeof(Words) - 1) / sizeof(Words); }
  /// How many characters must be there for so many pieces: something follows the record.
  static std::size_t room(std::size_t pieces) { return pieces * sizeof(Words) + 1; }

  /// Whether the record that begins `text` looks like this one, and something follows it.
  bool fits(std::string_view text) const {
    if (text.size() < room(pieces())) return false;
    Words differences{};
    for (std::size_t i = 0; i < pieces(); ++i) differences |= differencesAt(text.data(), i);
    return !any(differences);
  }

  struct Look {
    bool fits;
    bool hasWanted;
  };
  /// Whether the record at `text`, with room for so many pieces, looks like this one, and whether it has the
  /// wanted pair then.
  template <typename Count>
  Look look(const char* text, Count pieces, const WantedPair& wanted) const {
    Words differences{};
    Words found{};
    for (std::size_t i = 0; i < pieces; ++i) {
      differences |= differencesAt(text, i);
      found |= pairsAt(text + i * sizeof(Words), wanted) & pieces_[i].wanted;
    }
    return {!any(differences), any(found)};
  }

  /// Which of the learned shapes follow this one, the usual one and another.
  RecordShape* follower = nullptr;
  RecordShape* otherFollower = nullptr;

 private:
  /// Characters that the processor compares at once.
  using Words [[gnu::vector_size(16)]] = std::uint64_t;
  using Letters [[gnu::vector_size(16)]] = char;

  struct Piece {
    Words mask;
    Words value;
    /// All bits of the characters with which the wanted fields begin.
    Words wanted;
  };

  static Words wordsAt(const char* text) {
    Words words;
    std::memcpy(&words, text, sizeof words);
    return words;
  }
  static bool any(Words words) { return (words[0] | words[1]) != 0; }
  Words differencesAt(const char* text, std::size_t piece) const {
    return (wordsAt(text + piece * sizeof(Words)) & pieces_[piece].mask) ^ pieces_[piece].value;
  }
  /// All bits of the characters with which the pair begins.
  static Words pairsAt(const char* text, const WantedPair& wanted) {
    Letters first;
    Letters second;
    std::memcpy(&first, text, sizeof first);
    std::memcpy(&second, text + 1, sizeof second);
    return reinterpret_cast<Words>((first == wanted.first) & (second == wanted.second));
  }

  std::size_t fieldCount_;
  std::size_t length_;
  char lastCharacter_;
  std::array<Piece, maxLength / sizeof(Words)> pieces_{};
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

  /// What forEachWanted() looks for; to be called before the first record.
  void lookFor(const WantedPair& wanted) { wanted_ = wanted; }

  /// The same as forEachKnown(), but `use` gets only the records that have the wanted pair. Returns how many
  /// there were in all.
  template <typename Use>
  std::size_t forEachWanted(std::string_view& text, std::size_t fieldCount, Use use) {
    if (!isFor(fieldCount)) return 0;
    std::size_t count = 0;
    while (true) {
      if (isBetweenTwo(*last_)) count += wantedOfTwo(text, use);
      const auto [shape, hasWanted] = lookAfter(*last_, text);
      if (shape == nullptr) break;
      if (hasWanted) use(text.data(), shape->places());
      text.remove_prefix(shape->length());
      last_ = shape;
      ++count;
    }
    found_ += count;
    return count;
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

  struct Found {
    RecordShape* shape;
    bool hasWanted;
  };
  /// What findAfter() finds, and whether the record has the wanted pair.
  Found lookAfter(RecordShape& last, std::string_view text) {
    RecordShape* const usual = last.follower;
    if (text.size() >= RecordShape::room(usual->pieces())) {
      const RecordShape::Look look = usual->look(text.data(), usual->pieces(), wanted_);
      if (look.fits) return {usual, look.hasWanted};
    }
    RecordShape* const shape = findAfter(last, text);
    return {shape, shape != nullptr && shape->look(text.data(), shape->pieces(), wanted_).hasWanted};
  }

  /// Whether one or two shapes follow this one and each other.
  static bool isBetweenTwo(const RecordShape& last) {
    const auto staysInside = [&last](const RecordShape& shape) {
      return (shape.follower == last.follower || shape.follower == last.otherFollower) &&
             (shape.otherFollower == last.follower || shape.otherFollower == last.otherFollower);
    };
    return staysInside(*last.follower) && staysInside(*last.otherFollower);
  }

  /// forEachWanted() as long as the records have one of the two shapes that follow the last one.
  template <typename Use>
  std::size_t wantedOfTwo(std::string_view& text, Use use) {
    const std::size_t pieces = std::max(last_->follower->pieces(), last_->otherFollower->pieces());
    switch (pieces) {
      case 2:
        return wantedOfTwo(text, Pieces<2>(), use);
      case 3:
        return wantedOfTwo(text, Pieces<3>(), use);
      case 4:
        return wantedOfTwo(text, Pieces<4>(), use);
      default:
        return wantedOfTwo(text, pieces, use);
    }
  }
  /// A number of pieces that the compiler knows: the loop over them is the innermost one.
  template <std::size_t count>
  using Pieces = std::integral_constant<std::size_t, count>;
  template <typename Count, typename Use>
  std::size_t wantedOfTwo(std::string_view& text, Count pieces, Use use) {
    return last_->follower == last_->otherFollower ? wantedOfTwo<false>(text, pieces, use)
                                                   : wantedOfTwo<true>(text, pieces, use);
  }
  /// Which of two shapes comes next may be as good as random, as the number of digits of a last field is:
  /// nothing branches on it, for the processor would guess wrong.
  template <bool areTwo, typename Count, typename Use>
  std::size_t wantedOfTwo(std::string_view& text, Count pieces, Use use) {
    const bool isUsualShorter = last_->follower->length() <= last_->otherFollower->length();
    RecordShape* const shapes[] = {isUsualShorter ? last_->follower : last_->otherFollower,
                                   isUsualShorter ? last_->otherFollower : last_->follower};
    const std::size_t shorter = shapes[0]->length();
    const std::size_t difference = shapes[1]->length() - shorter;
    const char end = shapes[0]->lastCharacter();
    const WantedPair wanted = wanted_;
    const char* here = text.data();
    const char* const lastStart = here + text.size() - std::min(text.size(), RecordShape::room(pieces));
    std::size_t count = 0;
    std::size_t longer = 0;
    for (; here < lastStart; ++count) {
      const std::size_t isLonger = areTwo && here[shorter - 1] != end ? 1 : 0;
      const RecordShape& shape = *shapes[isLonger];
      const RecordShape::Look look = shape.look(here, pieces, wanted);
      if (!look.fits) break;
      if (look.hasWanted) use(here, shape.places());
      here += shorter + (-isLonger & difference);
      longer = isLonger;
    }
    if (count > 0) last_ = shapes[longer];
    text.remove_prefix(static_cast<std::size_t>(here - text.data()));
    return count;
  }

  WantedPair wanted_;
  /// All of one number of fields. Has its room from the start, so that its elements never move.
  std::vector<RecordShape> shapes_;
  /// That of the last record; null where none is known.
  RecordShape* last_ = nullptr;
  std::size_t found_ = 0;
  std::size_t learned_ = 0;
};

}  // namespace tallywick
