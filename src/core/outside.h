// SPDX-License-Identifier: GPL-3.0-or-later
// What handlers ask of their surroundings: message boxes, a fresh screen, the start of another program. A
// binding, a script or a test implements them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace tallywick {

/// The title of the program's own messages.
inline constexpr std::string_view programTitle = "Tallywick Software";

struct MessageBox {
  enum class Icon : std::uint8_t { none, exclamation, information, question };
  enum class Buttons : std::uint8_t { ok, yesNo };
  enum class Answer : std::uint8_t { ok, yes, no };

  std::string text;
  std::string title;
  Icon icon = Icon::none;
  Buttons buttons = Buttons::ok;
};

/// Shows message boxes and waits for the answer.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual MessageBox::Answer show(const MessageBox& box) = 0;
};

/// Shows a message of the program's own, with its title.
inline void showMessage(MessageBoxes& boxes, std::string text,
                        MessageBox::Icon icon = MessageBox::Icon::none) {
  boxes.show({std::move(text), std::string(programTitle), icon});
}

/// Brings the screen up to date in the middle of a handler, for example at a step of a progress bar.
class Screen {
 public:
  virtual ~Screen() = default;
  virtual void refresh() = 0;
};

/// Starts other programs; the working folder and the program are paths as the handlers write them.
class ProgramStarter {
 public:
  virtual ~ProgramStarter() = default;
  virtual void start(std::string_view program, std::string_view workingFolder) = 0;
};

}  // namespace tallywick
