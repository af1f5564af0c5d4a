#include "setup/setup_program.h"

#include "core/clock.h"
#include "core/text.h"
#include "setup/new_folder.h"
#include "setup/publish.h"
#include "setup/sample.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <ostream>
#include <stdexcept>
#include <string>

namespace tallywick::setup {

namespace fs = std::filesystem;

namespace {

struct Options {
  std::string folder;
  std::string now;
  std::uint64_t seed = 1;
  bool withoutPlays = false;
  std::string tree;
  std::string from;
};

void describe(CLI::App& app, Options& options) {
  app.set_version_flag("--version", "tallywick-setup " TALLYWICK_VERSION);
  CLI::Option* folder = app.add_option("DIR", options.folder, "The data folder to make");
  app.add_flag("--no-plays", options.withoutPlays, "Begin without sample plays");
  app.add_option("--seed", options.seed, "The same seed makes the same samples")->capture_default_str();
  app.add_option("--now", options.now, "Date and time to go by instead of the computer's")
      ->type_name("\"MM-DD-YYYY HH:MM:SS\"");
  CLI::Option* tree =
      app.add_option("--publish", options.tree, "Write an update server's folder tree instead");
  CLI::Option* from = app.add_option("--from", options.from, "The data folder whose draws are published");
  tree->type_name("TREE")->needs(from)->excludes(folder);
  from->type_name("DIR")->needs(tree);
  app.final_callback([folder, tree] {
    if (folder->empty() && tree->empty()) throw CLI::RequiredError("DIR or --publish");
  });
}

Day lastDrawn(const Options& options) {
  if (!options.now.empty()) return lastDrawnDay(cut(options.now, 1, 10), cut(options.now, 12, 8));
  const SystemClock clock;
  return lastDrawnDay(clock.date(), clock.time());
}

void makeFolder(const Options& options, std::ostream& out) {
  if (holdsPlays(options.folder)) {
    throw std::runtime_error(options.folder + " already holds plays; nothing was changed");
  }
  const Day last = lastDrawn(options);
  FolderContents contents = sampleContents(last, options.seed);
  if (!options.withoutPlays) {
    for (FolderContents::Part& part : contents.games) {
      addSamplePlays(part.game, part.book, last, options.seed);
    }
  }
  writeFolder(options.folder, contents);
  for (const FolderContents::Part& part : contents.games) {
    out << infoOf(part.game).name << ": " << part.book.draws.size() << " draws, " << part.origin << "\n";
  }
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
    if (options.tree.empty()) {
      makeFolder(options, out);
    } else {
      publish(options.tree, options.from, out);
    }
    return 0;
  } catch (const std::exception& error) {
    errors << "tallywick-setup: " << error.what() << "\n";
    return 1;
  }
}

}  // namespace tallywick::setup
