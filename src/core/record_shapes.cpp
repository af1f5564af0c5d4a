// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/record_shapes.h"

#include <algorithm>

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

RecordShape::RecordShape(std::string_view record, std::span<const FieldPlace> places)
    : fieldCount_(places.size()),
      length_(record.size()),
      blocks_((record.size() + sizeof(Block) - 1) / sizeof(Block)) {
  std::array<unsigned char, maxLength> mask{};
  std::array<unsigned char, maxLength> value{};
  for (std::size_t i = 0; i < record.size(); ++i) {
    // All digits share their upper four bits, and no separator, quote or blank has these.
    mask[i] = isDigit(record[i]) ? 0xF0 : 0xFF;
    value[i] = static_cast<unsigned char>(record[i]) & mask[i];
  }
  std::memcpy(mask_.data(), mask.data(), mask.size());
  std::memcpy(value_.data(), value.data(), value.size());
  std::copy(places.begin(), places.end(), places_.begin());
}

const RecordShape* RecordShapes::findOther(std::string_view text, std::size_t fieldCount) {
  const auto other = std::find_if(shapes_.begin(), shapes_.end(),
                                  [&](const RecordShape& shape) { return shape.fits(text, fieldCount); });
  if (other == shapes_.end()) return nullptr;
  const auto index = static_cast<std::size_t>(other - shapes_.begin());
  shapes_[last_].follower = index;
  return found(index);
}

void RecordShapes::learn(std::string_view record, std::span<const FieldPlace> places) {
  // A lone CR may be followed by LF the next time, and a record that the end of the file ends has no
  // separator.
  const bool endsForSure = record.ends_with(',') || record.ends_with('\n');
  if (!endsForSure || record.size() > RecordShape::maxLength) return;
  if (learned_ > patience && learned_ > found_) {
    shapes_.clear();
    return;
  }
  const std::size_t index = learned_++ % mostShapes;
  if (index == shapes_.size()) {
    shapes_.emplace_back(record, places);
  } else {
    shapes_[index] = RecordShape(record, places);
  }
  shapes_[last_].follower = index;
  shapes_[index].follower = index;
  last_ = index;
}

}  // namespace tallywick
