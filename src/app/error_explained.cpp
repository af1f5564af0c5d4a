// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/error_explained.h"

#include "core/data_folder.h"
#include "core/dated_copies.h"
#include "core/games.h"
#include "core/os.h"
#include "core/plays.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "core/torn_line.h"
#include "core/words.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <optional>
#include <string_view>
#include <vector>

namespace tallywick {

namespace {

namespace fs = std::filesystem;

/// What a file of the record book is for, and what mends it where it is missing or cannot be read.
struct FileKind {
  /// What its name ends with, in small letters.
  std::string_view ending;
  /// Behind "file of".
  std::string_view contents;
  std::string_view mending;
};

constexpr std::string_view mendDraws =
    "Start the program again and press Update, or Fetch in the window Draws…: this brings the draws of the "
    "game "
    "again. If it does not help, bring the file back from a backup (Backup…).";
constexpr std::string_view mendPlays =
    "Mend the record in a text editor: a play is one line of eight fields with commas between them. Or put "
    "the "
    "newest dated copy, which has this file's name with a date and a time, in its place; or restore a backup "
    "(Backup…). Update does not mend plays.";
constexpr std::string_view mendAmounts =
    "Mend the record in a text editor: month, day, year, amount and a number of marks, with commas between "
    "them. "
    "Or bring the file back from a backup (Backup…). The window Draws… takes the newest amounts again.";
constexpr std::string_view mendOther = "Bring this file back from a backup (Backup…).";

constexpr FileKind kinds[] = {
    {"qzrnum6.dat", "the draws", mendDraws},
    {"qzrnum62.dat", "the draws for searches and checks", mendDraws},
    {"qzrnum72.dat", "the Double Play draws", mendDraws},
    {".win", "the amounts of the draws", mendAmounts},
    {"1.ply", "your plays that wait for their draws", mendPlays},
    {"2.ply", "your plays that were drawn", mendPlays},
    {".ply", "plays that a change was about to move", mendPlays},
    {".sel", "your saved play texts", mendOther},
    {".dte", "the calendar of draw days", mendOther},
};

struct Advice {
  ErrorNumber number;
  std::string_view text;
};

constexpr Advice readingErrors[] = {
    {ErrorNumber::fileNotFound, "The file is missing. "},
    {ErrorNumber::inputPastEnd, "The file ends inside a record, or has too few records. "},
    {ErrorNumber::typeMismatch, "The record has a text where a number belongs. "},
};

constexpr Advice otherErrors[] = {
    {ErrorNumber::diskFull, "Make room on the disk, then start the program again."},
    {ErrorNumber::permissionDenied,
     "Close other programs that use the file, and see whether you may change it and its folder."},
    {ErrorNumber::pathFileAccess, "See whether the path is a file or folder that you may read and change."},
    {ErrorNumber::pathNotFound,
     "See whether the folder is there, for example on a drive that is not connected."},
    {ErrorNumber::deviceIoError,
     "See whether the drive is connected and whole, and make a backup of the record book."},
};

template <std::size_t Count>
const Advice* adviceOn(const RuntimeError& error, const Advice (&advices)[Count]) {
  const auto* const found =
      std::ranges::find_if(advices, [&](const Advice& advice) { return error.is(advice.number); });
  return found == std::end(advices) ? nullptr : found;
}

/// The path that the error names, without what is said of it.
std::string pathIn(const RuntimeError& error) {
  const std::string& where = error.where();
  return where.substr(0, std::min(where.find(", record "), where.find(" (")));
}

/// Null for any other file.
const FileKind* kindOf(std::string_view path) {
  const std::string small = lowered(path);
  const auto* const found =
      std::ranges::find_if(kinds, [&](const FileKind& kind) { return small.ends_with(kind.ending); });
  return found == std::end(kinds) ? nullptr : found;
}

/// The line of the file where the reading went wrong, which the error tells by a record further on. Empty
/// where no line can be named.
std::string tornLineOf(const RuntimeError& error) {
  constexpr std::string_view before = " of ";
  constexpr std::string_view behind = " is beyond the end";
  std::string_view said = error.where();
  if (!error.is(ErrorNumber::inputPastEnd) || !said.ends_with(behind)) return {};
  said.remove_suffix(behind.size());
  const std::optional<std::size_t> fields =
      wholeNumber<std::size_t>(said.substr(std::min(said.size(), said.rfind(before) + before.size())));
  try {
    const fs::path file = pathOf(error.where().substr(0, error.where().rfind(", record ")));
    const os::FileBytes bytes = os::readFile(file);
    const std::optional<TornLine> torn = fields ? firstTornLine(bytes.view(), *fields) : std::nullopt;
    if (!torn) return {};
    return join(textOf(file), ", line ", std::to_string(torn->number), ": it does not have ",
                std::to_string(*fields), " fields");
  } catch (const std::exception&) {
    return {};
  }
}

std::string placeOf(const RuntimeError& error) {
  if (error.where().empty()) return {};
  const std::string line = tornLineOf(error);
  std::string text = join("Where: ", line.empty() ? error.where() : line, "\n\n");
  const std::string path = lowered(pathIn(error));
  const FileKind* const kind = kindOf(path);
  if (kind == nullptr) return text;
  std::string_view game;
  for (const GameInfo* each : allGames) {
    if (path.find(lowered(join("qzr6", each->code))) != std::string::npos) game = each->name;
  }
  return join(text, "This is the ", game, game.empty() ? "" : " ", "file of ", kind->contents, ".\n\n");
}

std::string whatChanged(const RuntimeError& error) {
  if (adviceOn(error, readingErrors) != nullptr) {
    return "No play was lost. This file was only being read; what the action had finished before that, such "
           "as "
           "moving drawn plays, stays done. Lists, searches, counts and checks change no file. Done, moving "
           "drawn plays, and each game's part of an update change all of their files or none.";
  }
  return "Nothing is half changed: each file is as it was before, or complete as it is after the action, and "
         "no "
         "play is lost. If a change of several files was cut short, the next start finishes it.";
}

/// "QZR6PWR1.Sav (6 plays)"; empty where there is no such file, or one that is torn or has no play.
std::string wholeCopy(const fs::path& file) {
  try {
    const os::FileBytes bytes = os::readFile(file);
    const WholePlays whole = wholePlays(bytes.view(), {});
    if (!whole.torn.empty() || whole.plays.empty()) return {};
    return join(textOf(file.filename()), " (", inFigures(whole.plays.size(), "play"), ")");
  } catch (const std::exception&) {
    return {};
  }
}

/// The newest whole dated copy of a play file, and its copy with the ending .Sav.
std::vector<std::string> wholeCopiesOf(const fs::path& file) {
  const fs::path folder = file.parent_path();
  std::vector<std::string> copies;
  const auto add = [&copies](const std::string& copy) {
    if (!copy.empty()) copies.push_back(copy);
    return !copy.empty();
  };
  try {
    add(wholeCopy(entryInAnyCase(folder, join(textOf(file.stem()), ".Sav"))));
    for (const DatedCopy& copy : datedCopies(folder, textOf(file.filename()))) {
      if (add(wholeCopy(folder / pathOf(copy.name)))) break;
    }
  } catch (const std::exception&) {
    return copies;  // A folder that cannot be read has no copies to offer.
  }
  return copies;
}

std::string whatToDo(const RuntimeError& error) {
  if (const Advice* const reading = adviceOn(error, readingErrors))
    return join(reading->text, mendingOf(pathOf(pathIn(error))));
  if (const Advice* const other = adviceOn(error, otherErrors)) return std::string(other->text);
  if (!error.source().empty())
    return "See whether the network is there and the addresses in the settings are right.";
  return "Start the program again. If the error comes back, copy this text and send it to who looks after "
         "the program.";
}

}  // namespace

std::string mendingOf(const fs::path& file) {
  const FileKind* const kind = kindOf(textOf(file));
  std::string text(kind != nullptr ? kind->mending : mendOther);
  if (kind == nullptr || kind->mending != mendPlays) return text;
  const std::vector<std::string> copies = wholeCopiesOf(file);
  if (copies.empty()) return text;
  return join(text, "\n\nWhole copies beside it: ", listed(copies),
              ". Compare how many plays they have before you put one in its place.");
}

std::string endExplained(const RuntimeError& error) {
  const bool isMended = adviceOn(error, readingErrors) != nullptr && kindOf(pathIn(error)) != nullptr &&
                        kindOf(pathIn(error))->mending != mendDraws;
  return join("After OK the program ends. ",
              isMended ? "Mend the file, then start it again." : "You can then start it again.");
}

std::string errorExplained(const RuntimeError& error) {
  return join(placeOf(error), whatChanged(error), "\n\n", whatToDo(error));
}

}  // namespace tallywick
