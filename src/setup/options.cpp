// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/options.h"

#include "core/file_names.h"
#include "core/text.h"

#include <CLI/CLI.hpp>
#include <utility>
#include <vector>

namespace tallywick::setup {

namespace {

/// The words behind the options that take several.
struct Words {
  /// Game, date, white balls and extra ball.
  std::vector<std::string> addedDraw;
  /// Game and date.
  std::vector<std::string> removedDraw;
};

/// The words of the command line are UTF-8 on every platform.
CLI::Option* addPath(CLI::App& app, const std::string& name, std::filesystem::path& path,
                     const std::string& description) {
  const auto take = [&path](const std::string& text) { path = pathOf(text); };
  return app.add_option_function<std::string>(name, take, description);
}

void addExports(CLI::App& app, const std::string& name, ExportFiles& files) {
  CLI::Option* draws = addPath(app, name, files.draws, "Real draws, from a public export")->type_name("CSV");
  addPath(app, name + "-amounts", files.amounts, "Their amounts: draw date, amount, mark count")
      ->type_name("CSV")
      ->needs(draws);
}

/// Raises a CLI::ValidationError for any other name.
Game gameNamed(const std::string& option, const std::string& name) {
  if (equalIgnoringCase(name, "powerball")) return Game::powerBall;
  if (equalIgnoringCase(name, "mega-millions")) return Game::megaMillions;
  throw CLI::ValidationError(option,
                             join("\"", name, "\" is not a game; it must be powerball or mega-millions"));
}

/// What brings real draws into DIR, one of them at a time.
void describeDraws(CLI::App& app, CLI::Option* folder, Options& options, Words& words) {
  CLI::Option* fetch =
      app.add_flag("--fetch", options.fetches,
                   "Fetch both games' draws from the public exports; DIR is made where there is none");
  for (const auto& [name, address] : {std::pair("--source-powerball", &options.powerBallSource),
                                      std::pair("--source-mega-millions", &options.megaMillionsSource)}) {
    app.add_option(name, *address, "Its address instead of the settings'")
        ->type_name("ADDRESS")
        ->needs(fetch);
  }
  CLI::Option* add = app.add_option("--add-draw", words.addedDraw,
                                    "Type in a draw, for example: powerball 11-18-2026 \"5 14 23 41 60\" 7");
  add->type_name("GAME DATE NUMBERS EXTRA")->expected(4);
  const auto addPart = [&](const char* name, std::string& text, const char* type, const char* what) {
    app.add_option(name, text, what)->type_name(type)->needs(add);
  };
  addPart("--multiplier", options.typed.multiplier, "NUMBER", "The draw's multiplier");
  addPart("--double-play", options.typed.doublePlay, "NUMBERS",
          "Its Double Play: five white balls and the extra ball");
  addPart("--amount", options.typed.amount, "AMOUNT", "Its amount, as it is to be shown");
  addPart("--marks", options.typed.marks, "COUNT", "How many tickets won the amount");
  app.add_flag("--replace", options.replacesDraw, "Replace numbers or an amount that DIR has for the draw")
      ->needs(add);
  CLI::Option* remove = app.add_option("--remove-draw", words.removedDraw,
                                       "Remove a draw that was typed in and that no export has");
  remove->type_name("GAME DATE")->expected(2);
  for (CLI::Option* action : {fetch, add, remove}) {
    action->needs(folder);
    for (const char* other : {"--fetch", "--add-draw", "--remove-draw", "--powerball", "--mega-millions",
                              "--force-draws", "--backup", "--restore"}) {
      if (action->get_name() != other) action->excludes(app.get_option(other));
    }
  }
}

void takeWords(const Words& words, Options& options) {
  if (!words.addedDraw.empty()) {
    options.addsTo = gameNamed("--add-draw", words.addedDraw[0]);
    options.typed.date = words.addedDraw[1];
    options.typed.numbers = words.addedDraw[2];
    options.typed.extra = words.addedDraw[3];
  }
  if (!words.removedDraw.empty()) {
    options.removesFrom = gameNamed("--remove-draw", words.removedDraw[0]);
    options.removedDate = words.removedDraw[1];
  }
}

void describe(CLI::App& app, Options& options, Words& words) {
  app.set_version_flag("--version", "tallywick-setup " TALLYWICK_VERSION);
  CLI::Option* folder = addPath(app, "DIR", options.folder, "The data folder to make");
  auto& [powerBallExports, megaMillionsExports] = options.exports;
  addExports(app, "--powerball", powerBallExports);
  addExports(app, "--mega-millions", megaMillionsExports);
  app.add_flag("--force-draws", options.forceDraws,
               "Replace all draws and amounts of a folder that has some; the plays stay");
  app.add_flag("--no-plays", options.withoutPlays, "Begin without sample plays");
  app.add_option("--seed", options.seed, "The same seed makes the same samples")->capture_default_str();
  const auto setClock = [&options](const std::string& text) {
    const std::optional<FixedClock> clock = fixedClock(text);
    if (!clock) throw CLI::ValidationError("--now", "takes \"MM-DD-YYYY HH:MM:SS\"");
    options.clock = *clock;
  };
  app.add_option_function<std::string>("--now", setClock, "Date and time to go by instead of the computer's")
      ->type_name("\"MM-DD-YYYY HH:MM:SS\"");
  CLI::Option* tree = addPath(app, "--publish", options.tree, "Write an update server's folder tree instead");
  CLI::Option* from = addPath(app, "--from", options.from, "The data folder whose draws are published");
  tree->type_name("TREE")->needs(from)->excludes(folder);
  from->type_name("DIR")->needs(tree);
  CLI::Option* backup =
      addPath(app, "--backup", options.backup,
              "Write the record book in DIR to TO, a new zip or, where its name does not end in .zip, a "
              "new folder; without TO to a dated zip beside DIR");
  CLI::Option* restored =
      addPath(app, "--restore", options.restoredFrom,
              "Make DIR what a backup, a zip or a folder, contains; what DIR was stays beside it");
  backup->type_name("[TO]")->expected(0, 1)->needs(folder);
  restored->type_name("FROM")->needs(folder)->excludes(backup);
  describeDraws(app, folder, options, words);
  app.final_callback([folder, tree, from, backup, &options, &words] {
    options.backsUp = backup->count() > 0;
    if (folder->empty() && tree->empty()) throw CLI::RequiredError("DIR or --publish");
    for (const CLI::Option* option : {folder, tree, from}) {
      if (option->count() > 0 && option->as<std::string>().empty()) {
        throw CLI::ValidationError(option->get_name(), "the name is empty");
      }
    }
    takeWords(words, options);
  });
}

}  // namespace

std::optional<int> readOptions(int argc, const char* const* argv, Options& options, std::ostream& out,
                               std::ostream& errors) {
  CLI::App app("Makes a data folder for Tallywick, or an update server's folder tree.", "tallywick-setup");
  Words words;
  describe(app, options, words);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, errors) == 0 ? 0 : 2;
  }
  return std::nullopt;
}

}  // namespace tallywick::setup
