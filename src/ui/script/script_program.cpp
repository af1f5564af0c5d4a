// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/script/script_program.h"

#include "app/data_folder_choice.h"
#include "core/file_names.h"
#include "core/restored_folder.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "ui/script/control_json.h"
#include "ui/script/script_run.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace tallywick::script {

namespace {

struct Options {
  std::string folder;
  std::string now;
  std::uint64_t seed = entropy();
  std::string source;
  std::string server;
  std::string script;
};

void declare(CLI::App& line, Options& options) {
  line.set_version_flag("--version", std::string("tallywick-script ") + programVersion());
  line.add_option("--folder", options.folder, "The data folder")->type_name("DIR");
  line.add_option("--now", options.now, "Sets the clock, which then does not move")
      ->type_name("\"MM-DD-YYYY HH:MM:SS\"");
  line.add_option("--seed", options.seed, "Makes Quick Pick repeatable")->type_name("N");
  line.add_option("--source", options.source, "Where updates come from, in the place of the settings' source")
      ->type_name("public|server")
      ->check(CLI::IsMember({"public", "server"}));
  line.add_option("--server", options.server,
                  "The update server, in the place of the settings' source and server")
      ->type_name("HOST[:PORT]");
  line.add_option("script", options.script, "The file with the script's lines; standard input without one")
      ->type_name("SCRIPT");
  line.footer(
      "Lines: click NAME, choose NAME INDEX, type NAME TEXT, answer yes|no, now DATE TIME, show NAME..., "
      "print NAME...,\n"
      "close NAME, windows, plays powerball|mega-millions; # begins a comment line. The manual's page on "
      "scripts says more.");
}

int complain(const std::string& what) {
  std::cerr << "tallywick-script: " << what << '\n';
  return 2;
}

int end(const RuntimeError& error) {
  Json json;
  json["number"] = error.number();
  json["description"] = error.description();
  std::cout << oneLine({{"runtimeError", json}}) << std::endl;
  std::cerr << "tallywick-script: " << error.what() << '\n';
  return 1;
}

int runLines(Application& application, ScriptPlatform& platform, SettableClock& clock, std::istream& lines) {
  try {
    application.showMainWindow();
    ScriptRun(application, platform, clock, std::cout).run(lines);
    if (std::cout.flush()) return 0;
    complain("the output cannot be written");
    return 1;
  } catch (const BadLine& error) {
    return complain(error.what());
  } catch (const std::exception&) {
    return end(currentRuntimeError());
  }
}

int run(const Options& options) {
  const DataFolder folder(chooseDataFolder(options.folder));
  finishRestore(folder.root());
  if (!isDataFolder(folder.root())) return complain("there is no record book in " + textOf(folder.root()));
  SettableClock clock;
  if (!options.now.empty() && !clock.set(options.now)) return complain("--now takes \"MM-DD-YYYY HH:MM:SS\"");
  std::ifstream file;
  if (!options.script.empty()) {
    const std::filesystem::path script = pathOf(options.script);
    file.open(script);
    if (!file || std::filesystem::is_directory(script)) return complain(options.script + " cannot be read");
  }
  Settings settings = readSettings(folder);
  if (!options.server.empty()) {
    settings.server = options.server;
    settings.source = Settings::Source::server;
  }
  if (!options.source.empty()) settings.source = sourceNamed(options.source);
  ScriptPlatform platform(std::cout, folder);
  MixingGenerator random(options.seed);
  Application application({folder, settings, clock, random, platform, {}});
  return runLines(application, platform, clock, options.script.empty() ? std::cin : file);
}

}  // namespace

int runScriptProgram(int argumentCount, char** arguments) {
  Options options;
  CLI::App line("Runs the record book by the lines of a script, without a screen.", "tallywick-script");
  declare(line, options);
  try {
    line.parse(argumentCount, arguments);
    return run(options);
  } catch (const CLI::ParseError& error) {
    return line.exit(error) == 0 ? 0 : 2;
  } catch (const std::exception& error) {
    return complain(error.what());
  }
}

}  // namespace tallywick::script
