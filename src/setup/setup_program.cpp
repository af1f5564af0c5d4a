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
#include "setup/options.h"
#include "setup/publish.h"
#include "setup/sample.h"
#include "update/public_exports.h"

#include <algorithm>
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

Day lastDrawn(const Clock& clock) {
  return lastDrawnDay(clock.date(), clock.time());
}

Day today(const Clock& clock) {
  return parseDay(clock.date()).value();
}

/// What the exports of one game contain.
struct ExportedGame {
  ExportedGame(Game itsGame, const ExportFiles& files, Day today)
      : game(itsGame), name(textOf(files.draws)), draws(exports::readDrawsFile(game, files.draws, today)) {
    if (!files.amounts.empty()) amounts = exports::readAmountsFile(game, files.amounts, today);
  }

  exports::Merge mergeInto(const exports::GameFiles& files, exports::DrawOrigin origin) const {
    try {
      return exports::mergeExport(game, draws, amounts, files, origin);
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
  for (std::size_t i = 0; i < allGames.size(); ++i) {
    const ExportFiles& files = options.exports[i];
    if (!files.draws.empty()) exported.emplace_back(allGames[i]->game, files, today);
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
  const Day last = lastDrawn(options.clock);
  FolderContents contents = sampleContents(last, options.seed);
  std::vector<exports::MergeReport> reports;
  for (const ExportedGame& real : exported) {
    FolderContents::Part& part = contents.games[real.game == Game::powerBall ? 0 : 1];
    reports.push_back(real.mergeInto({}, exports::DrawOrigin::real).report);
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
        [&](const exports::GameFiles& files, exports::DrawOrigin origin) {
          return real.mergeInto(files, options.forceDraws ? exports::DrawOrigin::madeUp : origin);
        }));
    real.print(merges.back()->report(), out);
  }
  for (const auto& merge : merges) merge->commit();
}

void makeFolder(const Options& options, std::ostream& out) {
  const std::vector<ExportedGame> exported = readExports(options, today(options.clock));
  requireGameFolders(options.folder);
  if (!containsRecords(options.folder)) return makeNewFolder(options, exported, out);
  if (!exported.empty()) return mergeExports(options, exported, out);
  if (!options.forceDraws) {
    throw std::runtime_error(textOf(options.folder) +
                             " already contains draws or plays; nothing was changed. --force-draws replaces "
                             "its draws and amounts");
  }
  for (const FolderContents::Part& part : sampleContents(lastDrawn(options.clock), options.seed).games) {
    replaceDraws(options.folder, part);
    out << infoOf(part.game).name << ": " << part.book.draws.size() << " made-up sample draws\n";
  }
}

void backUpFolder(const Options& options, std::ostream& out) {
  const fs::path to = options.backup.empty() ? datedBackup(options.folder, SystemClock()) : options.backup;
  out << reportOf(backUp(options.folder, to), to) << "\n";
}

void restoreFolder(const Options& options, std::ostream& out) {
  const Restored restored = restore(options.restoredFrom, options.folder, SystemClock());
  out << restored.files << " files restored to " << textOf(options.folder) << " and compared\n";
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
  std::optional<ProgressLine> line;
  if (outputs.isTerminal) line.emplace(outputs.errors);
  TransferWatch* const watch = line ? &*line : nullptr;
  const bool isNew = !containsRecords(options.folder);
  const std::vector<GameFetch> fetches =
      isNew ? makeFetchedFolder(folder, options.clock, settings, {}, watch)
            : fetchDraws(folder, options.clock, exportAddresses(settings), {}, watch);
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
    outputs.errors << "tallywick-setup: " << textOf(options.folder)
                   << " was not made; it needs the draws of both games\n";
  }
  return isComplete;
}

void addDraw(const Options& options, std::ostream& out) {
  requireGameFolders(options.folder);
  const Game game = *options.addsTo;
  const exports::CheckedDraw draw = exports::checkedDraw(game, options.typed, today(options.clock));
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
  const Game game = *options.removesFrom;
  const std::optional<Day> day = parseDay(options.removedDate);
  if (!day) throw std::runtime_error(join("\"", options.removedDate, "\" is not a date (MM-DD-YYYY)"));
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
  } else if (options.addsTo) {
    addDraw(options, out);
  } else if (options.removesFrom) {
    removeDraw(options, out);
  } else {
    makeFolder(options, out);
  }
  return true;
}

}  // namespace

int runSetup(int argc, const char* const* argv, const Outputs& outputs) {
  Options options;
  if (const std::optional<int> exitCode = readOptions(argc, argv, options, outputs.out, outputs.errors)) {
    return *exitCode;
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
