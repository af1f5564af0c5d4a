// SPDX-License-Identifier: GPL-3.0-or-later
// How a widget's action reaches a handler of the model.
#pragma once

#include <functional>

namespace tallywick {

class HandlerRunner {
 public:
  virtual ~HandlerRunner() = default;
  /// Runs a handler to its end and copies what it changed to the screen. Does nothing while another one runs.
  virtual void run(const std::function<void()>& handler) = 0;
};

}  // namespace tallywick
