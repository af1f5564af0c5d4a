// SPDX-License-Identifier: GPL-3.0-or-later
// The actions of the program that are measured: what comes before a press, untimed, and the press.
#pragma once

#include "app/application.h"

#include <ctime>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::bench {

/// A step is a control's name, to be clicked, or NAME=NUMBER: a tab to show or an item to choose. Controls of
/// a selection window are written Form3.NAME.
struct Action {
  std::string_view name;
  std::vector<std::string_view> before;
  std::string_view press;
};

const std::vector<Action>& actions();

/// Raises std::invalid_argument where there is no such control.
void perform(const Application& application, std::string_view step);

/// The first time of an action, and the shortest one after it.
struct Times {
  void add(std::clock_t time, int round);
  std::clock_t first = 0;
  std::clock_t best = 0;
};

/// A line: the name, and both times in microseconds, tabs between them.
void printTimes(std::string_view name, const Times& times);

/// Runs every action `rounds` times and prints the processor times of each. `run` runs a step and what
/// follows from it.
void measureActions(const std::function<void(std::string_view step)>& run, int rounds);

}  // namespace tallywick::bench
