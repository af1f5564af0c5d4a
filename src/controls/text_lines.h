// SPDX-License-Identifier: GPL-3.0-or-later
// Lines of text, one after the other in one buffer: a list of a million items is two allocations.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick {

class TextLines {
 public:
  void add(std::string_view line) {
    text_.append(line);
    ends_.push_back(text_.size());
    ++revision_;
  }
  void clear() {
    text_.clear();
    ends_.clear();
    ++revision_;
  }
  std::size_t size() const { return ends_.size(); }
  bool empty() const { return ends_.empty(); }
  /// Another number after each change.
  std::size_t revision() const { return revision_; }
  /// Valid until the next change.
  std::string_view operator[](std::size_t index) const {
    const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
    return std::string_view(text_).substr(begin, ends_[index] - begin);
  }

 private:
  std::string text_;
  std::vector<std::size_t> ends_;
  std::size_t revision_ = 0;
};

}  // namespace tallywick
