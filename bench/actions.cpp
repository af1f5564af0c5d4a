// SPDX-License-Identifier: GPL-3.0-or-later
#include "actions.h"

#include "core/text.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace tallywick::bench {

namespace {

Control& controlOf(const Application& application, std::string_view name) {
  const std::size_t point = name.find('.');
  const bool isOther = point != std::string_view::npos;
  const Form* const form = application.find(isOther ? name.substr(0, point) : "Form1");
  Control* const control = form != nullptr ? form->find(isOther ? name.substr(point + 1) : name) : nullptr;
  if (control == nullptr) throw std::invalid_argument(join("there is no control ", name));
  return *control;
}

}  // namespace

const std::vector<Action>& actions() {
  static const std::vector<Action> actions = {
      {"PowerBall summary", {}, "Command7"},
      {"Mega Millions summary", {}, "Command4"},
      {"PowerBall from the menu", {}, "mnuPowerBall"},
      {"Mega Millions from the menu", {}, "mnuMegaMillions"},
      {"next page", {"Command7"}, "Command8"},
      {"page Searches", {"SSTab1=0"}, "munSearches"},
      {"page Winnings", {"SSTab1=0"}, "mnuWinnings"},
      {"show numbers, two or three", {"SSTab1=1", "SSTab2=0"}, "Command37"},
      {"mark a number", {}, "Command31"},
      {"search for two", {"Command37", "Command31", "Command32"}, "Command38"},
      {"search for three", {"Command37", "Command31", "Command32", "Command33"}, "Command38"},
      {"search Mega Millions for two", {"Command37", "Command31", "Command32"}, "Command25"},
      {"search Double Play for two", {"Command37", "Command31", "Command32"}, "Command26"},
      {"show numbers, have played", {"SSTab2=1"}, "Command22"},
      {"count, have played", {"Command22", "Command15"}, "Command21"},
      {"show number, played", {"SSTab2=2"}, "Command29"},
      {"count, played", {}, "Command30"},
      {"show numbers, own plays", {"SSTab2=3"}, "Command45"},
      {"count, own plays", {"Command45", "Command39"}, "Command46"},
      {"check against the latest draw", {"SSTab1=2", "SSTab3=1", "Option1"}, "Command47"},
      {"check by date", {"Option2"}, "Command47"},
      {"maintenance of the PowerBall plays", {"SSTab3=0"}, "Command1"},
      {"maintenance of the Mega Millions plays", {}, "Command51"},
      {"chart of the last 100 draws", {"SSTab1=3"}, "Command52"},
      {"chart of the last 100 Double Play draws", {}, "Command27"},
      {"pictures of the newest draws", {}, "Command3"},
      {"open the Mega Millions selection window", {"Command4"}, "Command48"},
      {"open the selection window", {"Command7"}, "Command48"},
      {"mark a number of the slip", {}, "Form3.07"},
      {"clear", {}, "Form3.Command84"},
      {"Quick Pick", {}, "Form3.Command9"},
      {"Replay", {"Form3.Combo7=0"}, "Form3.Command60"},
      {"Select", {"Command48", "Form3.Command9"}, "Form3.Command59"},
      {"Draw", {"Form3.Command9", "Form3.Command59"}, "Form3.Command1"},
      {"Done", {"Command48", "Form3.Command9", "Form3.Command59"}, "Form3.Command5"},
      {"about", {}, "mnuAbout"},
  };
  return actions;
}

void perform(const Application& application, std::string_view step) {
  const std::size_t equals = step.find('=');
  Control& control = controlOf(application, step.substr(0, equals));
  if (equals == std::string_view::npos) {
    click(control);
    return;
  }
  const int number = wholeNumber<int>(step.substr(equals + 1)).value_or(0);
  if (auto* tabs = dynamic_cast<TabStrip*>(&control)) tabs->setTab(number);
  if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    const auto item = static_cast<std::size_t>(number);
    if (item < combo->items().size()) combo->setText(std::string(combo->items()[item]));
  }
}

void Times::add(std::clock_t time, int round) {
  if (round == 0) first = time;
  best = round <= 1 ? time : std::min(best, time);
}

void printTimes(std::string_view name, const Times& times) {
  const double microseconds = 1e6 / CLOCKS_PER_SEC;
  std::printf("%s\t%.0f\t%.0f\n", std::string(name).c_str(), static_cast<double>(times.first) * microseconds,
              static_cast<double>(times.best) * microseconds);
}

void measureActions(const std::function<void(std::string_view step)>& run, int rounds) {
  for (const Action& action : actions()) {
    Times times;
    for (int round = 0; round < rounds; ++round) {
      for (std::string_view step : action.before) run(step);
      const std::clock_t began = std::clock();
      run(action.press);
      times.add(std::clock() - began, round);
    }
    printTimes(action.name, times);
  }
}

}  // namespace tallywick::bench
