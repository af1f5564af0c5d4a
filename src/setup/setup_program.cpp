// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/setup_program.h"

#include "core/clock.h"
#include "core/file_commit.h"
#include "core/text.h"
#include "exports/import_report.h"
#include "setup/backup.h"
#include "setup/new_folder.h"
#include "setup/publish.h"
#include "setup/sample.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <string>

namespace tallywick::setup {

namespace fs = std::filesystem;

namespace {

/// The exports of one game; empty where there are none.
struct ExportFiles {
  std::string draws;
  std::string amounts;
};

struct Options {
  std::string folder;
  std::array<ExportFiles, 2> exports;
  bool forceDraws = false;
  std::string now;
  std::uint64_t seed = 1;
  bool withoutPlays = false;
  std::string tree;
  std::string from;
  bool backsUp = false;
  std::string backup;
  std::string restoredFrom;
};

void addExports(CLI::App& app, const std::string& name, ExportFiles& files) {
  CLI::Option* draws =
      app.add_option(name, files.draws, "Real draws, from a public export")->type_name("CSV");
  app.add_option(name + "-amounts", files.amounts, "Their amounts: draw date, amount, mark count")
      ->type_name("CSV")
      ->needs(draws);
}

void describe(CLI::App& app, Options& options) {
  app.set_version_flag("--version", "tallywick-setup " TALLYWICK_VERSION);
  CLI::Option* folder = app.add_option("DIR", options.folder, "The data folder to make");
  auto& [powerBallExports, megaMillionsExports] = options.exports;
  addExports(app, "--powerball", powerBallExports);
  addExports(app, "--mega-millions", megaMillionsExports);
  app.add_flag("--force-draws", options.forceDraws,
               "Replace the draws and amounts of a folder that holds plays; the plays stay");
  app.add_flag("--no-plays", options.withoutPlays, "Begin without sample plays");
  app.add_option("--seed", options.seed, "The same seed makes the same samples")->capture_default_str();
  app.add_option("--now", options.now, "Date and time to go by instead of the computer's")
      ->type_name("\"MM-DD-YYYY HH:MM:SS\"");
  CLI::Option* tree =
      app.add_option("--publish", options.tree, "Write an update server's folder tree instead");
  CLI::Option* from = app.add_option("--from", options.from, "The data folder whose draws are published");
  tree->type_name("TREE")->needs(from)->excludes(folder);
  from->type_name("DIR")->needs(tree);
  CLI::Option* backup =
      app.add_option("--backup", options.backup,
                     "Write the record book in DIR to a zip, without FILE a dated one beside DIR");
  CLI::Option* restored = app.add_option("--restore", options.restoredFrom,
                                         "Make DIR what a backup contains; what DIR was stays beside it");
  backup->type_name("[FILE]")->expected(0, 1)->needs(folder);
  restored->type_name("FILE")->needs(folder)->excludes(backup);
  app.final_callback([folder, tree, backup, &options] {
    options.backsUp = backup->count() > 0;
    if (folder->empty() && tree->empty()) throw CLI::RequiredError("DIR or --publish");
  });
}

Day lastDrawn(const Options& options) {
  if (!options.now.empty()) return lastDrawnDay(cut(options.now, 1, 10), cut(options.now, 12, 8));
  const SystemClock clock;
  return lastDrawnDay(clock.date(), clock.time());
}

/// Sample draws, and real ones in their place for each game that has an export. Sample plays go with sample
/// draws. In a folder that is somebody's, a game without an export is left alone where the other one has one.
FolderContents contentsOf(const Options& options, bool isSomebodys, std::ostream& out) {
  const auto hasExport = [](const ExportFiles& files) { return !files.draws.empty(); };
  const bool onlyExports = isSomebodys && std::ranges::any_of(options.exports, hasExport);
  const Day last = lastDrawn(options);
  FolderContents contents = sampleContents(last, options.seed);
  for (std::size_t i = 0; i < contents.games.size(); ++i) {
    FolderContents::Part& part = contents.games[i];
    const ExportFiles& files = options.exports[i];
    if (hasExport(files)) {
      exports::ExportedGame exported = exports::readExports(part.game, files.draws, files.amounts, out);
      part.book.draws = std::move(exported.draws);
      part.book.amounts = std::move(exported.amounts);
      part.origin = join("real draws from ", fs::path(files.draws).filename().string());
    } else if (onlyExports) {
      part.book = {};
      part.origin = "draws and amounts left as they were";
    } else {
      if (!options.withoutPlays) addSamplePlays(part.game, part.book, last, options.seed);
      out << infoOf(part.game).name << ": " << part.book.draws.size() << " draws, " << part.origin << "\n";
    }
  }
  return contents;
}

void makeFolder(const Options& options, std::ostream& out) {
  const bool isSomebodys = holdsPlays(options.folder);
  if (isSomebodys && !options.forceDraws) {
    throw std::runtime_error(
        options.folder +
        " already holds plays; nothing was changed. --force-draws replaces its draws and amounts");
  }
  const FolderContents contents = contentsOf(options, isSomebodys, out);
  if (!isSomebodys) return writeFolder(options.folder, contents);
  for (const FolderContents::Part& part : contents.games) {
    if (!part.book.draws.empty()) replaceDraws(options.folder, part);
  }
  writeNotes(options.folder, contents);
}

void backUpFolder(const Options& options, std::ostream& out) {
  const fs::path zip =
      options.backup.empty() ? datedBackup(options.folder, SystemClock()) : fs::path(options.backup);
  const std::size_t files = backUp(options.folder, zip);
  out << files << " files of " << options.folder << " written to " << zip.string() << " and compared\n";
}

void restoreFolder(const Options& options, std::ostream& out) {
  const Restored restored = restore(options.restoredFrom, options.folder, SystemClock());
  out << restored.files << " files restored to " << options.folder << " and compared\n";
  if (!restored.earlier.empty()) out << "What was there before is in " << restored.earlier.string() << "\n";
}

void runOptions(const Options& options, std::ostream& out) {
  if (!options.tree.empty()) return publish(options.tree, options.from, out);
  if (!options.restoredFrom.empty()) return restoreFolder(options, out);
  if (options.backsUp) return backUpFolder(options, out);
  makeFolder(options, out);
}

}  // namespace

int runSetup(int argc, const char* const* argv, std::ostream& out, std::ostream& errors) {
  Options options;
  CLI::App app("Makes a data folder for Tallywick, or an update server's folder tree.", "tallywick-setup");
  describe(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, errors) == 0 ? 0 : 2;
  }
  try {
    runOptions(options, out);
    for (const std::string& notice : takeRecoveryNotices()) errors << "tallywick-setup: " << notice << "\n";
    return 0;
  } catch (const std::exception& error) {
    errors << "tallywick-setup: " << error.what() << "\n";
    return 1;
  }
}

}  // namespace tallywick::setup
