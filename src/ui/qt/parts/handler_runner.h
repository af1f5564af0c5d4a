// SPDX-License-Identifier: GPL-3.0-or-later
// How a widget's action reaches the program.
#pragma once

#include <functional>

namespace tallywick {

/// No exception leaves either function, so that none passes through the toolkit.
class HandlerRunner {
 public:
  virtual ~HandlerRunner() = default;
  /// Runs a handler of the model to its end and copies what it changed to the screen. Does nothing while
  /// another one runs. What it raises ends the program.
  virtual void run(const std::function<void()>& handler) = 0;
  /// Runs what the windows add to the model: help, settings, printing, saving. What it raises is shown in a
  /// message, and the program goes on.
  virtual void attempt(const std::function<void()>& action) = 0;
};

}  // namespace tallywick
