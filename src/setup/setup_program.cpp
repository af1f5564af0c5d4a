// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/setup_program.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/eras.h"
#include "core/file_commit.h"
#include "core/text.h"
#include "exports/folder_merge.h"
#include "exports/import_report.h"
#include "setup/backup.h"
#include "setup/new_folder.h"
#include "setup/publish.h"
#include "setup/sample.h"

#include <CLI/CLI.hpp>
#include <array>
#include <filesystem>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

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
               "Replace all draws and amounts of a folder that has some; the plays stay");
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
  app.final_callback([folder, tree, from, backup, &options] {
    options.backsUp = backup->count() > 0;
    if (folder->empty() && tree->empty()) throw CLI::RequiredError("DIR or --publish");
    for (const CLI::Option* option : {folder, tree, from}) {
      if (option->count() > 0 && option->as<std::string>().empty()) {
        throw CLI::ValidationError(option->get_name(), "the name is empty");
      }
    }
  });
}

/// The date and the time of the day to go by.
struct Now {
  explicit Now(const Options& options) : date(cut(options.now, 1, 10)), time(cut(options.now, 12, 8)) {
    if (!options.now.empty()) return;
    const SystemClock clock;
    date = clock.date();
    time = clock.time();
  }
  Day lastDrawn() const { return lastDrawnDay(date, time); }
  Day today() const { return lastDrawnDay(date, "24:00:00"); }

  std::string date;
  std::string time;
};

/// What the exports of one game contain.
struct ExportedGame {
  ExportedGame(Game itsGame, const ExportFiles& files, Day today)
      : game(itsGame), name(files.draws), draws(exports::readDrawsFile(game, files.draws, today)) {
    if (!files.amounts.empty()) amounts = exports::readAmountsFile(game, files.amounts, today);
  }

  exports::Merge mergeInto(const exports::GameFiles& files, exports::Standing standing) const {
    try {
      return exports::mergeExport(game, draws, amounts, files, standing);
    } catch (const std::runtime_error& error) {
      throw std::runtime_error(join(name, ": ", error.what()));
    }
  }

  void print(const exports::MergeReport& report, std::ostream& out) const {
    out << infoOf(game).name << ": " << report.draws << " draws taken from " << name << "\n";
    exports::print(report, game, out);
  }

  Game game;
  std::string name;
  exports::ExportedDraws draws;
  exports::ExportedAmounts amounts;
};

std::vector<ExportedGame> readExports(const Options& options, Day today) {
  std::vector<ExportedGame> exported;
  constexpr std::array games = {Game::powerBall, Game::megaMillions};
  for (std::size_t i = 0; i < games.size(); ++i) {
    const ExportFiles& files = options.exports[i];
    if (!files.draws.empty()) exported.emplace_back(games[i], files, today);
  }
  return exported;
}

void addSamplePlays(FolderContents& contents, Day last, const Options& options) {
  if (options.withoutPlays) return;
  for (FolderContents::Part& part : contents.games) {
    if (part.madeUp) addSamplePlays(part.game, part.book, last, options.seed);
  }
}

void makeNewFolder(const Options& options, const std::vector<ExportedGame>& exported, std::ostream& out) {
  const Day last = Now(options).lastDrawn();
  FolderContents contents = sampleContents(last, options.seed);
  std::vector<exports::MergeReport> reports;
  for (const ExportedGame& real : exported) {
    FolderContents::Part& part = contents.games[real.game == Game::powerBall ? 0 : 1];
    reports.push_back(real.mergeInto({}, exports::Standing::real).report);
    part.book.draws = real.draws.draws;
    part.book.amounts = real.amounts.amounts;
    part.madeUp = false;
  }
  addSamplePlays(contents, last, options);
  writeFolder(options.folder, contents);
  for (std::size_t i = 0; i < exported.size(); ++i) exported[i].print(reports[i], out);
  for (const FolderContents::Part& part : contents.games) {
    if (part.madeUp)
      out << infoOf(part.game).name << ": " << part.book.draws.size() << " made-up sample draws\n";
  }
}

/// Both games' changes are worked out before either is made.
void mergeExports(const Options& options, const std::vector<ExportedGame>& exported, std::ostream& out) {
  std::vector<std::unique_ptr<exports::FolderMerge>> merges;
  for (const ExportedGame& real : exported) {
    merges.push_back(std::make_unique<exports::FolderMerge>(
        DataFolder(options.folder), real.game,
        [&](const exports::GameFiles& files, exports::Standing standing) {
          return real.mergeInto(files, options.forceDraws ? exports::Standing::madeUp : standing);
        }));
    real.print(merges.back()->report(), out);
  }
  for (const auto& merge : merges) merge->commit();
}

void makeFolder(const Options& options, std::ostream& out) {
  const std::vector<ExportedGame> exported = readExports(options, Now(options).today());
  requireGameFolders(options.folder);
  if (!holdsRecords(options.folder)) return makeNewFolder(options, exported, out);
  if (!exported.empty()) return mergeExports(options, exported, out);
  if (!options.forceDraws) {
    throw std::runtime_error(options.folder +
                             " already contains draws or plays; nothing was changed. --force-draws replaces "
                             "its draws and amounts");
  }
  for (const FolderContents::Part& part : sampleContents(Now(options).lastDrawn(), options.seed).games) {
    replaceDraws(options.folder, part);
    out << infoOf(part.game).name << ": " << part.book.draws.size() << " made-up sample draws\n";
  }
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
