// SPDX-License-Identifier: GPL-3.0-or-later
// The runtime error that an action raises.
#pragma once

#include "core/runtime_error.h"

#include <cstdint>
#include <string>

namespace tallywick::test {

struct Raised {
  /// 0 where nothing was raised.
  std::int32_t number = 0;
  std::string description;
  std::string where;
};

template <typename Action>
Raised raisedBy(Action action) {
  try {
    action();
    return {};
  } catch (const RuntimeError& error) {
    return {error.number(), error.description(), error.where()};
  }
}

}  // namespace tallywick::test
