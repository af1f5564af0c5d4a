// SPDX-License-Identifier: GPL-3.0-or-later
// Stand-ins for what surrounds the handlers.
#pragma once

#include "controls/controls.h"
#include "core/outside.h"

#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::test {

/// Keeps the boxes that were shown; answers Yes/No boxes from `answers`, with No where none is left.
class RecordingBoxes : public MessageBoxes {
 public:
  MessageBox::Answer show(const MessageBox& box) override {
    shown.push_back(box);
    if (box.buttons == MessageBox::Buttons::ok) return MessageBox::Answer::ok;
    if (answers.empty()) return MessageBox::Answer::no;
    const MessageBox::Answer answer = answers.front();
    answers.pop_front();
    return answer;
  }

  /// The only box shown, as "title|text"; what is wrong otherwise.
  std::string only() const {
    if (shown.size() != 1) return std::to_string(shown.size()) + " boxes";
    return shown[0].title + "|" + shown[0].text;
  }

  std::vector<MessageBox> shown;
  std::deque<MessageBox::Answer> answers;
};

/// Keeps what would have been started.
class RecordingStarter : public ProgramStarter {
 public:
  void start(std::string_view program, std::string_view workingFolder) override {
    started.push_back({std::string(program), std::string(workingFolder)});
  }

  struct Started {
    std::string program;
    std::string workingFolder;
  };
  std::vector<Started> started;
};

/// The items of a list or drop-down.
template <typename Items>
std::vector<std::string> itemsOf(const Items& control) {
  std::vector<std::string> items;
  for (std::size_t i = 0; i < control.items().size(); ++i) items.emplace_back(control.items()[i]);
  return items;
}

}  // namespace tallywick::test
