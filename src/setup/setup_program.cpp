// SPDX-License-Identifier: GPL-3.0-or-later
#include "setup/setup_program.h"

#include "backup/backup.h"
#include "core/clock.h"
#include "core/data_folder.h"
#include "core/eras.h"
#include "core/file_names.h"
#include "core/journal.h"
#include "core/restored_folder.h"
#include "core/text.h"
#include "exports/folder_merge.h"
#include "exports/import_report.h"
#include "exports/typed_draws.h"
#include "settings/settings.h"
#include "setup/new_folder.h"
#include "setup/publish.h"
#include "setup/sample.h"
#include "update/public_exports.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <utility>
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
  bool fetches = false;
  /// Addresses in the place of the settings'; empty for these.
  std::string powerBallSource;
  std::string megaMillionsSource;
  /// Game, date, white balls and extra ball.
  std::vector<std::string> addedDraw;
  exports::TypedDraw typed;
  bool replacesDraw = false;
  /// Game and date.
  std::vector<std::string> removedDraw;
};

void addExports(CLI::App& app, const std::string& name, ExportFiles& files) {
  CLI::Option* draws =
      app.add_option(name, files.draws, "Real draws, from a public export")->type_name("CSV");
  app.add_option(name + "-amounts", files.amounts, "Their amounts: draw date, amount, mark count")
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
void describeDraws(CLI::App& app, CLI::Option* folder, Options& options) {
  CLI::Option* fetch =
      app.add_flag("--fetch", options.fetches,
                   "Fetch both games' draws from the public exports; DIR is made where there is none");
  for (const auto& [name, address] : {std::pair("--source-powerball", &options.powerBallSource),
                                      std::pair("--source-mega-millions", &options.megaMillionsSource)}) {
    app.add_option(name, *address, "Its address instead of the settings'")
        ->type_name("ADDRESS")
        ->needs(fetch);
  }
  CLI::Option* add = app.add_option("--add-draw", options.addedDraw,
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
  CLI::Option* remove = app.add_option("--remove-draw", options.removedDraw,
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
  CLI::Option* backup = app.add_option(
      "--backup", options.backup,
      "Write the record book in DIR to TO, a new zip or, where its name does not end in .zip, a "
      "new folder; without TO to a dated zip beside DIR");
  CLI::Option* restored =
      app.add_option("--restore", options.restoredFrom,
                     "Make DIR what a backup, a zip or a folder, contains; what DIR was stays beside it");
  backup->type_name("[TO]")->expected(0, 1)->needs(folder);
  restored->type_name("FROM")->needs(folder)->excludes(backup);
  describeDraws(app, folder, options);
  app.final_callback([folder, tree, from, backup, &options] {
    options.backsUp = backup->count() > 0;
    if (folder->empty() && tree->empty()) throw CLI::RequiredError("DIR or --publish");
    for (const CLI::Option* option : {folder, tree, from}) {
      if (option->count() > 0 && option->as<std::string>().empty()) {
        throw CLI::ValidationError(option->get_name(), "the name is empty");
      }
    }
    if (!options.addedDraw.empty()) gameNamed("--add-draw", options.addedDraw.front());
    if (!options.removedDraw.empty()) gameNamed("--remove-draw", options.removedDraw.front());
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
  const fs::path to =
      options.backup.empty() ? datedBackup(options.folder, SystemClock()) : fs::path(options.backup);
  out << reportOf(backUp(options.folder, to), to) << "\n";
}

void restoreFolder(const Options& options, std::ostream& out) {
  const Restored restored = restore(options.restoredFrom, options.folder, SystemClock());
  out << restored.files << " files restored to " << options.folder << " and compared\n";
  if (!restored.earlier.empty()) out << "What was there before is in " << textOf(restored.earlier) << "\n";
}

/// Writes how far a fetch is into one line of a terminal, which goes when the fetch ends.
class ProgressLine : public TransferWatch {
 public:
  explicit ProgressLine(std::ostream& terminal) : terminal_(terminal) {}
  ~ProgressLine() override {
    if (!text_.empty()) terminal_ << "\r" << std::string(text_.size(), ' ') << "\r" << std::flush;
  }
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  void progress(const TransferProgress& soFar) override {
    std::string text = join("Fetching export ", std::to_string(soFar.files + 1), " of ",
                            std::to_string(soFar.filesInAll), ": ", std::to_string(soFar.bytes), " bytes");
    if (text == text_) return;
    // What was longer before is painted over.
    terminal_ << "\r" << text << std::string(text_.size() - std::min(text_.size(), text.size()), ' ')
              << std::flush;
    text_ = std::move(text);
  }
  bool cancelled() override { return false; }

 private:
  std::ostream& terminal_;
  std::string text_;
};

/// The settings of the folder, with the addresses that were asked for.
Settings fetchSettings(const Options& options) {
  Settings settings = readSettings(DataFolder(options.folder));
  if (!options.powerBallSource.empty()) settings.powerBallDraws = options.powerBallSource;
  if (!options.megaMillionsSource.empty()) settings.megaMillionsDraws = options.megaMillionsSource;
  return settings;
}

/// False where a game's draws did not come. A new folder is made only where both games' have.
bool fetch(const Options& options, const Outputs& outputs) {
  requireGameFolders(options.folder);
  const DataFolder folder(options.folder);
  const Settings settings = fetchSettings(options);
  const Now now(options);
  const StandingClock clock(now.date, now.time);
  std::optional<ProgressLine> line;
  if (outputs.isTerminal) line.emplace(outputs.errors);
  TransferWatch* const watch = line ? &*line : nullptr;
  const bool isNew = !holdsRecords(options.folder);
  const std::vector<GameFetch> fetches =
      isNew ? makeFetchedFolder(folder, clock, settings, {}, watch)
            : fetchDraws(folder, clock, exportAddresses(settings), {}, watch);
  line.reset();
  const bool isComplete = std::ranges::all_of(fetches, &std::string::empty, &GameFetch::error);
  const bool isMade = !isNew || isComplete;
  for (const GameFetch& one : fetches) {
    const std::string_view game = infoOf(one.game).name;
    if (one.error.empty() && !isMade) continue;
    if (!one.error.empty()) {
      outputs.errors << "tallywick-setup: " << game << ": " << one.error << "\n";
    } else if (one.isUnchanged) {
      outputs.out << game << ": nothing new at " << one.address << "\n";
    } else {
      outputs.out << game << ": " << one.report.draws << " draws fetched from " << one.address << "\n";
      exports::print(one.report, one.game, outputs.out);
    }
  }
  if (!isMade) {
    outputs.errors << "tallywick-setup: " << options.folder
                   << " was not made; it needs the draws of both games\n";
  }
  return isComplete;
}

void addDraw(const Options& options, std::ostream& out) {
  requireGameFolders(options.folder);
  exports::TypedDraw typed = options.typed;
  const Game game = gameNamed("--add-draw", options.addedDraw[0]);
  typed.date = options.addedDraw[1];
  typed.numbers = options.addedDraw[2];
  typed.extra = options.addedDraw[3];
  const exports::CheckedDraw draw = exports::checkedDraw(game, typed, Now(options).today());
  const auto known = options.replacesDraw ? exports::KnownDraw::isReplaced : exports::KnownDraw::stays;
  exports::MergeReport report;
  try {
    report = exports::addDraw(DataFolder(options.folder), game, draw, known);
  } catch (const exports::DrawIsKnown& error) {
    throw std::runtime_error(join(error.what(), "; nothing was changed. --replace replaces what is known"));
  }
  out << infoOf(game).name << ": the draw of " << displayDate(draw.draw.day)
      << (!report.changesFiles  ? " is known already; nothing was changed"
          : report.newDraws > 0 ? " was added"
                                : " was changed")
      << "\n";
}

void removeDraw(const Options& options, std::ostream& out) {
  requireGameFolders(options.folder);
  const Game game = gameNamed("--remove-draw", options.removedDraw[0]);
  const std::optional<Day> day = parseDay(options.removedDraw[1]);
  if (!day) throw std::runtime_error(join("\"", options.removedDraw[1], "\" is not a date (MM-DD-YYYY)"));
  exports::removeDraw(DataFolder(options.folder), game, *day);
  out << infoOf(game).name << ": the draw of " << displayDate(*day) << " was removed\n";
}

/// False where something failed that has been reported.
bool runOptions(const Options& options, const Outputs& outputs) {
  if (!options.folder.empty()) finishRestore(options.folder);
  if (options.fetches) return fetch(options, outputs);
  std::ostream& out = outputs.out;
  if (!options.tree.empty()) {
    publish(options.tree, options.from, out);
  } else if (!options.restoredFrom.empty()) {
    restoreFolder(options, out);
  } else if (options.backsUp) {
    backUpFolder(options, out);
  } else if (!options.addedDraw.empty()) {
    addDraw(options, out);
  } else if (!options.removedDraw.empty()) {
    removeDraw(options, out);
  } else {
    makeFolder(options, out);
  }
  return true;
}

}  // namespace

int runSetup(int argc, const char* const* argv, const Outputs& outputs) {
  Options options;
  CLI::App app("Makes a data folder for Tallywick, or an update server's folder tree.", "tallywick-setup");
  describe(app, options);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, outputs.out, outputs.errors) == 0 ? 0 : 2;
  }
  int exitCode = 1;
  try {
    if (runOptions(options, outputs)) exitCode = 0;
    for (const std::string& notice : takeRecoveryNotices()) {
      outputs.errors << "tallywick-setup: " << notice << "\n";
    }
  } catch (const std::exception& error) {
    outputs.errors << "tallywick-setup: " << error.what() << "\n";
  }
  return exitCode;
}

}  // namespace tallywick::setup
