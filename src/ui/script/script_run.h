// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the lines of a script against the program.
#pragma once

#include "app/application.h"
#include "ui/script/script_platform.h"

#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tallywick::script {

/// A line that cannot be understood, with what is wrong about it.
class BadLine : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class ScriptRun {
 public:
  ScriptRun(Application& application, ScriptPlatform& platform, SettableClock& clock, std::ostream& out)
      : application_(application), platform_(platform), clock_(clock), out_(out) {}

  /// Runs the lines until they or the program end. Raises BadLine, its text beginning with "line N: ".
  void run(std::istream& lines);

 private:
  void runLine(std::string_view line);
  void click(std::string_view name);
  void choose(std::string_view rest);
  void type(std::string_view rest);
  void answer(std::string_view rest);
  void show(std::string_view name);
  void print(std::string_view name);
  void close(std::string_view name);
  void listWindows();
  void judgePlays(std::string_view game);
  /// Raises BadLine where there is no such control or its window is not open.
  Control& control(std::string_view name) const;

  Application& application_;
  ScriptPlatform& platform_;
  SettableClock& clock_;
  std::ostream& out_;
};

}  // namespace tallywick::script
