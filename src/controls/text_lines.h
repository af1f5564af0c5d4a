// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of text, one after the other in one block of memory. Lists that show the same lines share it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace tallywick {

class TextLines {
 public:
  TextLines() = default;
  TextLines(const TextLines&) = delete;
  TextLines& operator=(const TextLines&) = delete;

  void add(std::string_view line) { std::copy(line.begin(), line.end(), addLine(line.size())); }
  /// Adds a line of `size` characters, which the caller writes to where this points.
  char* addLine(std::size_t size) {
    ++revision_;
    return (block_ && !isShared() ? *block_ : ownBlock()).add(size);
  }
  void clear();
  /// Becomes the same lines as `other`, in the same memory until one of the two changes.
  void share(const TextLines& other);
  std::size_t size() const { return block_ ? block_->size() : 0; }
  bool empty() const { return size() == 0; }
  /// Another number after each change.
  std::size_t revision() const { return revision_; }
  /// Valid until the next change.
  std::string_view operator[](std::size_t index) const { return block_->line(index); }

 private:
  class Block {
   public:
    Block() = default;
    Block(const Block& other);
    Block& operator=(const Block&) = delete;

    char* add(std::size_t size) {
      if (count_ == 0) lineSize_ = size;
      if (size != lineSize_ && ends_.empty()) noteEnds();
      if (size > capacity_ - used_) grow(std::max(used_ + size, 2 * capacity_));
      char* const line = text_.get() + used_;
      used_ += size;
      ++count_;
      if (!ends_.empty()) ends_.push_back(used_);
      return line;
    }
    void clear();
    std::size_t size() const { return count_; }
    std::string_view line(std::size_t index) const {
      if (ends_.empty()) return {text_.get() + index * lineSize_, lineSize_};
      const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
      return {text_.get() + begin, ends_[index] - begin};
    }

   private:
    struct Free {
      void operator()(char* text) const { std::free(text); }
    };

    void noteEnds();
    void grow(std::size_t capacity);

    std::unique_ptr<char[], Free> text_;
    std::size_t capacity_ = 0;
    std::size_t used_ = 0;
    std::size_t count_ = 0;
    /// That of the first line, and of all where there are no ends.
    std::size_t lineSize_ = 0;
    /// Where each line ends; empty as long as all lines have one size.
    std::vector<std::size_t> ends_;
  };

  bool isShared() const { return block_.use_count() > 1; }
  /// A block that no other lines share.
  Block& ownBlock();

  std::shared_ptr<Block> block_;
  std::size_t revision_ = 0;
};

}  // namespace tallywick
