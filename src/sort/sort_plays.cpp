// SPDX-License-Identifier: GPL-3.0-or-later
#include "sort/sort_plays.h"

#include "core/data_folder.h"
#include "core/day.h"
#include "core/file_commit.h"
#include "core/file_names.h"
#include "core/games.h"
#include "core/journal.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/work_files.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <limits>
#include <ostream>
#include <utility>

namespace tallywick::sort {

namespace fs = std::filesystem;

namespace {

/// A record with its line end, as it is in the file.
struct PlayLine {
  std::string_view text;
  /// The number of its day; behind every real date where it has none.
  int day;
};

/// Cuts the first line with its end, CR LF, LF or CR, off `text`.
std::string_view takeLine(std::string_view& text) {
  std::size_t end = std::min(text.find_first_of("\r\n"), text.size() - 1) + 1;
  if (text.substr(end - 1).starts_with("\r\n")) ++end;
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end);
  return line;
}

/// Only a date as the program itself writes it is one.
int dayOfPlay(const Play& play) {
  const std::optional<Day> day = play.isListed() ? parseDay(play.date) : std::nullopt;
  return day && displayDate(*day) == play.date ? day->number() : std::numeric_limits<int>::max();
}

PlayLine readLine(std::string_view line, const std::string& where) {
  SequentialReader reader(line, where);
  try {
    const Fields<playFields> record = reader.record<playFields>();
    if (reader.atEnd()) return {line, dayOfPlay(playOf(record))};
  } catch (const RuntimeError&) {
    throw PlaysLeftAlone(join(where, ": the record is cut short; the file is left as it is"));
  }
  throw PlaysLeftAlone(join(where, ": more than one record; the file is left as it is"));
}

std::vector<PlayLine> linesOf(std::string_view plays, const std::string& name) {
  std::vector<PlayLine> lines;
  while (!plays.empty()) {
    const std::string where = join(name, ", line ", std::to_string(lines.size() + 1));
    lines.push_back(readLine(takeLine(plays), where));
  }
  return lines;
}

void sortGame(const fs::path& folder, const GameInfo& game, bool& found) {
  const fs::path file = entryInAnyCase(folder, playFileName(game, PlaySlot::committed));
  if (!fs::exists(file)) return;
  found = true;
  const os::FileLock lock = lockFolder(folder);
  CommittedPlays(file).putInOrder();
}

}  // namespace

std::optional<std::string> inDrawOrder(std::string_view plays, const std::string& name) {
  std::vector<PlayLine> lines = linesOf(plays, name);
  if (std::ranges::is_sorted(lines, {}, &PlayLine::day)) return std::nullopt;
  std::ranges::stable_sort(lines, {}, &PlayLine::day);
  std::string text;
  text.reserve(plays.size() + 2);
  for (const PlayLine& line : lines) {
    text += line.text;
    if (!line.text.ends_with('\n') && !line.text.ends_with('\r')) text += "\r\n";
  }
  return text;
}

CommittedPlays::CommittedPlays(fs::path file) : file_(std::move(file)), read_(os::readFile(file_)) {}

void CommittedPlays::putInOrder() const {
  const std::optional<std::string> sorted = inDrawOrder(read_.view(), textOf(file_));
  if (!sorted) return;
  if (os::readFile(file_).view() != read_.view()) {
    throw PlaysLeftAlone(join(textOf(file_), ": changed meanwhile by another program; left as it is"));
  }
  replaceFile(file_, *sorted);
}

void sortFolder(const fs::path& folder) {
  bool found = false;
  for (const GameInfo* game : allGames) sortGame(folder, *game, found);
  if (found) return;
  throw RuntimeError(ErrorNumber::fileNotFound,
                     join(textOf(folder), " contains neither ", playFileName(powerBall, PlaySlot::committed),
                          " nor ", playFileName(megaMillions, PlaySlot::committed)));
}

int runSort(int argc, const char* const* argv, std::ostream& out, std::ostream& errors) {
  std::string folder = ".";
  CLI::App app(
      "Puts the committed plays of a game folder in the order of their draws, oldest first.\n"
      "Tallywick starts it after each update.",
      "qzrsrt3");
  app.set_version_flag("--version", "qzrsrt3 " TALLYWICK_VERSION);
  app.add_option("FOLDER", folder, "The game folder; the working folder without one");
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, errors) == 0 ? 0 : 2;
  }
  try {
    sortFolder(pathOf(folder));
    for (const std::string& notice : takeRecoveryNotices()) errors << "qzrsrt3: " << notice << "\n";
    return 0;
  } catch (const std::exception& error) {
    errors << "qzrsrt3: " << error.what() << "\n";
    return 1;
  }
}

}  // namespace tallywick::sort
