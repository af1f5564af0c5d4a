// SPDX-License-Identifier: GPL-3.0-or-later
#include "draw_history.h"

#include "core/text.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <utility>

namespace tallywick::bench {

namespace {

class HistoryMaker {
 public:
  explicit HistoryMaker(Shape shape) : shape_(shape) { std::iota(balls_.begin(), balls_.end(), 1); }

  std::string make(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      addField(twoDigits(upTo(12)));
      addField(twoDigits(upTo(28)));
      addField(std::to_string(2999 - i % 1000));
      addNumbers();
      addField(shape_ == Shape::mixed && upTo(4) == 1 ? "10" : std::to_string(1 + upTo(4)));
      if (shape_ == Shape::doublePlay) {
        addField("0");
        addNumbers();
        addField("0");
      }
      text_.replace(text_.size() - 1, 1, "\r\n");
    }
    return std::move(text_);
  }

 private:
  int upTo(unsigned last) { return static_cast<int>(1 + random_() % last); }

  void addField(const std::string& field) {
    const bool quoted = shape_ == Shape::quoted || shape_ == Shape::doublePlay;
    text_ += quoted ? join("\"", field, "\",") : join(field, ",");
  }

  void addNumbers() {
    for (std::size_t i = 0; i < 5; ++i) std::swap(balls_[i], balls_[i + random_() % (balls_.size() - i)]);
    std::sort(balls_.begin(), balls_.begin() + 5);
    for (std::size_t i = 0; i < 5; ++i) addField(twoDigits(balls_[i]));
    addField(twoDigits(upTo(26)));
  }

  Shape shape_;
  std::mt19937 random_{20260307};
  std::array<int, 69> balls_{};
  std::string text_;
};

}  // namespace

std::string drawHistory(std::size_t count, Shape shape) {
  return HistoryMaker(shape).make(count);
}

}  // namespace tallywick::bench
