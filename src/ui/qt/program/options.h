// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of the desktop program.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tallywick {

struct Options {
  std::string folder;
  bool noSplash = false;
  /// The picture to save; empty for a run of the program.
  std::string screenshot;
  /// What the picture shows: a page of the main window, controls pressed before, a window, its size.
  int page = 0;
  std::vector<std::string> press;
  std::string window = "Form1";
  std::string size;
  /// The file of the steps to take, and the time that the clock then shows; empty for a run of the program.
  std::string steps;
  std::string now;
  /// The program's name and what else is on the command line: the toolkit has options of its own.
  std::vector<std::string> toolkitArguments;
};

/// An exit code where the command line already says all: after --help and --version, or where it cannot be
/// understood.
std::optional<int> readOptions(int argumentCount, char** arguments, Options& options);

}  // namespace tallywick
