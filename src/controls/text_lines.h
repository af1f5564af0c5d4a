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
  }
  void clear() {
    text_.clear();
    ends_.clear();
  }
  std::size_t size() const { return ends_.size(); }
  bool empty() const { return ends_.empty(); }
  /// Valid until the next change.
  std::string_view operator[](std::size_t index) const {
    const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
    return std::string_view(text_).substr(begin, ends_[index] - begin);
  }

 private:
  std::string text_;
  std::vector<std::size_t> ends_;
};

}  // namespace tallywick
