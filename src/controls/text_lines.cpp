// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/text_lines.h"

#include <new>

namespace tallywick {

void TextLines::clear() {
  if (isShared()) {
    block_.reset();
  } else if (block_) {
    block_->clear();
  }
  ++revision_;
}

void TextLines::share(const TextLines& other) {
  block_ = other.block_;
  ++revision_;
}

TextLines::Block& TextLines::ownBlock() {
  block_ = block_ ? std::make_shared<Block>(*block_) : std::make_shared<Block>();
  return *block_;
}

TextLines::Block::Block(const Block& other)
    : used_(other.used_), count_(other.count_), lineSize_(other.lineSize_), ends_(other.ends_) {
  grow(used_);
  std::copy_n(other.text_.get(), used_, text_.get());
}

void TextLines::Block::clear() {
  used_ = 0;
  count_ = 0;
  ends_.clear();
}

void TextLines::Block::noteEnds() {
  for (std::size_t line = 1; line <= count_; ++line) ends_.push_back(line * lineSize_);
}

/// Not by a new block and a copy: the system can move the pages of a large block, and fresh ones take it
/// longer than all that is written into them.
void TextLines::Block::grow(std::size_t capacity) {
  constexpr std::size_t least = 256;
  capacity = std::max(capacity, least);
  char* const grown = static_cast<char*>(std::realloc(text_.get(), capacity));
  if (grown == nullptr) throw std::bad_alloc();
  static_cast<void>(text_.release());
  text_.reset(grown);
  capacity_ = capacity;
}

}  // namespace tallywick
