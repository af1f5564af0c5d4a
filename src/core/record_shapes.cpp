// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/record_shapes.h"

#include <algorithm>
#include <utility>

namespace tallywick {

namespace {

/// A file with more kinds of records than these has no usual one.
constexpr std::size_t mostShapes = 12;
/// So many records are looked at before guessing is given up where it seldom succeeds.
constexpr std::size_t patience = 64;

bool isDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

}  // namespace

RecordShape::RecordShape(std::string_view record, std::span<const FieldPlace> places,
                         const WantedPair& wanted)
    : fieldCount_(places.size()), length_(record.size()), lastCharacter_(record.back()) {
  std::array<unsigned char, maxLength> mask{};
  std::array<unsigned char, maxLength> value{};
  std::array<unsigned char, maxLength> starts{};
  for (std::size_t i = 0; i < record.size(); ++i) {
    // All digits share their upper four bits, and no separator, quote or blank has these.
    mask[i] = isDigit(record[i]) ? 0xF0 : 0xFF;
    value[i] = static_cast<unsigned char>(record[i]) & mask[i];
  }
  std::copy(places.begin(), places.end(), places_.of.begin());
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (places[i].size == 2) places_.pairs |= std::uint32_t{1} << i;
    if ((places_.pairs & wanted.fields) >> i & 1) starts[places[i].start] = 0xFF;
  }
  for (std::size_t i = 0; i < pieces_.size(); ++i) {
    std::memcpy(&pieces_[i].mask, mask.data() + i * sizeof(Words), sizeof(Words));
    std::memcpy(&pieces_[i].value, value.data() + i * sizeof(Words), sizeof(Words));
    std::memcpy(&pieces_[i].wanted, starts.data() + i * sizeof(Words), sizeof(Words));
  }
}

RecordShape* RecordShapes::findOther(RecordShape& last, std::string_view text) {
  for (RecordShape& other : shapes_) {
    if (!other.fits(text)) continue;
    last.otherFollower = std::exchange(last.follower, &other);
    return &other;
  }
  return nullptr;
}

void RecordShapes::learn(std::string_view record, std::span<const FieldPlace> places) {
  // A lone CR may be followed by LF the next time, and a record that the end of the file ends has no
  // separator.
  const bool endsForSure = record.ends_with(',') || record.ends_with('\n');
  if (!endsForSure || record.size() > RecordShape::maxLength) return;
  const bool seldomFound = learned_ > patience && learned_ > found_;
  if (seldomFound || !isFor(places.size())) {
    shapes_.clear();
    last_ = nullptr;
    if (seldomFound) return;
  }
  shapes_.reserve(mostShapes);
  const std::size_t index = learned_++ % mostShapes;
  const bool isNew = index >= shapes_.size();
  RecordShape& learned = isNew ? shapes_.emplace_back(record, places, wanted_) : shapes_[index];
  if (!isNew) learned = RecordShape(record, places, wanted_);
  learned.follower = &learned;
  learned.otherFollower = &learned;
  if (last_ != nullptr) last_->otherFollower = std::exchange(last_->follower, &learned);
  last_ = &learned;
}

}  // namespace tallywick
