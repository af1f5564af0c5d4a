// SPDX-License-Identifier: GPL-3.0-or-later
// An open selection window with a calendar, a clock and random values of the test's choice.
#pragma once

#include "controls/controls.h"
#include "core/text.h"
#include "selection/selection_form.h"
#include "support/fakes.h"
#include "support/scratch_folder.h"

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace tallywick::test {

/// A record a day from the first of November to the end of 2026: "11","01","2026","day","n","7" …
inline std::string calendar() {
  using namespace std::chrono;
  std::string text;
  for (sys_days day = 2026y / November / 1; day <= sys_days(2026y / December / 31); day += days(1)) {
    const year_month_day date = day;
    text += records({join(twoDigits(int(unsigned(date.month()))), ",", twoDigits(int(unsigned(date.day()))),
                          ",2026,day,n,", std::to_string(weekday(day).iso_encoding()))});
  }
  return text;
}

/// Plays back values and keeps the seeds.
class ScriptedRandom : public RandomGenerator {
 public:
  void seed(std::string_view text) override { seeds.emplace_back(text); }
  double next() override { return values.at(drawn++); }

  std::vector<double> values;
  std::size_t drawn = 0;
  std::vector<std::string> seeds;
};

class Selection : public testing::Test {
 protected:
  Selection() { scratch.write("QZRNUM22.DTE", calendar()); }

  /// A window that has been opened at noon of Saturday, the 21st of November 2026, or at another time.
  SelectionForm& open(const GameInfo& game = powerBall, const std::string& date = "11-21-2026",
                      const std::string& time = "12:00:00") {
    clock = FixedClock(date, time);
    form =
        std::make_unique<SelectionForm>(game, SelectionSurroundings{scratch.folder(), clock, random, boxes});
    form->load();
    return *form;
  }

  /// A file of the open window's game by the end of its name, for example "7.Ply".
  std::string path(std::string_view file, const GameInfo& game = powerBall) {
    return join(game.folder, "QZR6", game.code, file);
  }
  std::string get(std::string_view file) { return scratch.read(path(file, form->game)); }

  void press(std::string_view name) { click(*form->find(name)); }
  void mark(std::string_view numbers, Mark as) {
    std::istringstream list{std::string(numbers)};
    for (std::string number; list >> number;) setMark(form->button(std::stoi(number)), as);
  }
  void select(std::string_view main, std::string_view extra) {
    mark(main, Mark::main);
    mark(extra, Mark::extra);
    form->Command59.show();
    press("Command59");
  }

  /// The marked numbers, the extra ones in brackets.
  std::string marks() const {
    std::string text;
    for (const auto& button : form->numbers) {
      if (markOf(*button) == Mark::main) text += button->caption() + " ";
      if (markOf(*button) == Mark::extra) text += "[" + button->caption() + "] ";
    }
    return text;
  }

  ScratchFolder scratch;
  FixedClock clock{"", ""};
  ScriptedRandom random;
  RecordingBoxes boxes;
  std::unique_ptr<SelectionForm> form;
};

}  // namespace tallywick::test
