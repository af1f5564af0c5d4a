// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/qt/program/options.h"

#include "app/small_windows.h"
#include "core/clock.h"
#include "core/text.h"

#include <CLI/CLI.hpp>
#include <algorithm>

namespace tallywick {

namespace {

/// What is wrong with a size such as "1024x768"; empty where nothing is.
std::string faultOfSize(const std::string& text) {
  constexpr int largest = 10000;
  const std::size_t cross = std::min(text.find('x'), text.size());
  const auto width = wholeNumber<int>(std::string_view(text).substr(0, cross));
  const auto height = wholeNumber<int>(std::string_view(text).substr(std::min(cross + 1, text.size())));
  const bool isOne = width && height && std::min(*width, *height) > 0 && std::max(*width, *height) <= largest;
  return isOne ? "" : text + " is not a size such as 1024x768";
}

/// The same of a time.
std::string faultOfTime(const std::string& text) {
  return SettableClock().set(text) ? "" : text + " is not a time such as \"11-21-2026 12:00:00\"";
}

void declare(CLI::App& line, Options& options) {
  line.set_version_flag("--version", std::string("tallywick ") + programVersion());
  line.add_option("--folder", options.folder, "The data folder")->type_name("DIR");
  line.add_flag("--no-splash", options.noSplash, "Opens the main window at once");
  CLI::Option* picture =
      line.add_option("--screenshot", options.screenshot, "Saves a picture of the window and ends")
          ->type_name("FILE");
  line.add_option("--page", options.page, "Shows page 0 to 3 in the picture")
      ->type_name("N")
      ->check(CLI::Range(0, 3))
      ->needs(picture);
  line.add_option("--press", options.press, "Presses this control before the picture is taken")
      ->type_name("NAME")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->needs(picture);
  line.add_option("--window", options.window, "Takes the picture of this window")
      ->type_name("NAME")
      ->needs(picture);
  line.add_option("--size", options.size, "Gives the window this size, for example 1024x768")
      ->type_name("WxH")
      ->check(faultOfSize)
      ->needs(picture);
  CLI::Option* steps =
      line.add_option("--steps", options.steps, "Takes the steps of this file in the windows and ends")
          ->type_name("FILE")
          ->excludes(picture);
  line.add_option("--now", options.now, "Sets the clock of the steps, which then does not move")
      ->type_name("\"MM-DD-YYYY HH:MM:SS\"")
      ->check(faultOfTime)
      ->needs(steps);
  line.allow_extras();
}

}  // namespace

std::optional<int> readOptions(int argumentCount, char** arguments, Options& options) {
  CLI::App line("A record book for PowerBall and Mega Millions.", "tallywick");
  declare(line, options);
  try {
    line.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    return line.exit(error) == 0 ? 0 : 2;
  }
  options.toolkitArguments = line.remaining();
  options.toolkitArguments.insert(options.toolkitArguments.begin(), "tallywick");
  return std::nullopt;
}

}  // namespace tallywick
