// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/draws_note.h"

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/draws.h"
#include "core/eras.h"
#include "core/remembered.h"
#include "core/runtime_error.h"
#include "core/sequential_reader.h"
#include "core/text.h"
#include "core/words.h"
#include "update/public_exports.h"

#include <algorithm>
#include <array>
#include <exception>
#include <string_view>

namespace tallywick {

namespace {

/// The date of the newest draw; none where there is no draw, or none that can be read.
std::optional<Day> newestDrawDay(const GameInfo& game, const DataFolder& folder) {
  try {
    SequentialReader draws(folder, inFolder(game, drawsFile), SequentialReader::Reading::inPieces);
    return drawOf(draws.record<drawFields>()).drawnOn();
  } catch (const std::exception&) {
    return std::nullopt;  // What is wrong with the file is reported where it is read for its draws.
  }
}

}  // namespace

std::string drawsNote(const GameInfo& game, const DataFolder& folder, const Clock& clock) {
  constexpr int daysOfWeek = 7;
  const std::optional<Day> newest = newestDrawDay(game, folder);
  if (!newest) return "There is no draw yet";
  const Day drawn = lastDrawnDay(clock.date(), clock.time());
  const Day next = drawDayAfter(game.game, *newest);
  if (next > drawn) return join("Next draw: ", weekdayName(next), ", ", displayDate(next));
  if (drawDayAfter(game.game, next) <= drawn) {
    return join("The draws since ", weekdayName(next), ", ", displayDate(next), ", are not published yet");
  }
  const std::string date = drawn - next < daysOfWeek ? "" : join(" (", displayDate(next), ")");
  return join(weekdayName(next), "'s draw", date, " is not published yet");
}

std::string doublePlayNote(const DataFolder& folder) {
  std::size_t records = 0;
  std::size_t known = 0;
  std::string newest;
  std::string oldest;
  try {
    SequentialReader reader(folder, inFolder(powerBall, doublePlayFile));
    forEachRecord<doublePlayFields>(reader, [&](const Fields<doublePlayFields>& record) {
      ++records;
      const Draw draw = doublePlayDrawOf(record);
      if (!draw.hasNumbers()) return;
      ++known;
      oldest = draw.displayDate();
      if (newest.empty()) newest = oldest;
    });
  } catch (const std::exception&) {
    return "";  // What is wrong with the file is reported where it is read for its draws.
  }
  if (known == records) return "";
  if (known == 0) {
    return "Double Play: no numbers are known for these draws yet, so their balls, bars and lines are blank.";
  }
  return join("Double Play: numbers are known for ", std::to_string(known), " of ", std::to_string(records),
              " draws, ", known == 1 ? "that of " : "from " + oldest + " to ", newest,
              "; the balls, bars and lines of the others are blank.");
}

std::vector<os::FileStamp> stampsOfDraws(const DataFolder& folder) {
  std::vector<std::string> files = {inFolder(powerBall, doublePlayFile)};
  for (const GameInfo* game : allGames) {
    for (const std::string_view name : {drawsFile, searchDrawsFile}) files.push_back(inFolder(*game, name));
  }
  try {
    return stampsOf(folder, files);
  } catch (const RuntimeError&) {
    return {};
  }
}

std::string drawsAgeNote(const GameInfo& game, const DataFolder& folder, const Clock& clock) {
  struct Unit {
    int days;
    /// From how many days on.
    int from;
    std::string_view name;
  };
  constexpr std::array<Unit, 3> units = {{{365, 2 * 365, "year"}, {30, 60, "month"}, {7, 14, "week"}}};
  const std::optional<Day> newest = newestDrawDay(game, folder);
  const std::optional<Day> today = parseDay(clock.date());
  if (!newest || !today) return "";
  const int age = *today - *newest;
  const auto* const unit = std::ranges::find_if(units, [age](const Unit& each) { return age >= each.from; });
  if (unit == units.end()) return "";
  return join("The newest ", game.name, " draw is ",
              inFigures(static_cast<std::size_t>(age / unit->days), unit->name), " old.");
}

std::string summaryOf(const GameInfo& game, const exports::HistoryReport& history) {
  constexpr std::size_t mostNamed = 10;
  if (!history.first || !history.newest) return join("There are no draws of ", game.name, " yet.");
  std::string text = join(std::to_string(history.draws), " draws, the first of ", displayDate(*history.first),
                          ", the newest of ", displayDate(*history.newest), ".\n");
  if (history.missing.empty()) return text + "No scheduled draw between them is missing.";
  text += history.missing.size() == 1
              ? "One scheduled draw between them is missing:"
              : join(std::to_string(history.missing.size()), " scheduled draws between them are missing:");
  for (std::size_t i = 0; i < std::min(history.missing.size(), mostNamed); ++i) {
    text += join(i == 0 ? " " : ", ", displayDate(history.missing[i]));
  }
  if (history.missing.size() > mostNamed) {
    text += join(" and ", std::to_string(history.missing.size() - mostNamed), " more, the last ",
                 displayDate(history.missing.back()));
  }
  return text + ".";
}

std::string fetchFailure(const GameFetch& fetch) {
  constexpr std::string_view head = "The transfer failed: ";
  std::string text = fetch.error;
  if (text.starts_with(head)) text.erase(0, head.size());
  const std::string address = join("\"", fetch.address, "\"");
  const std::size_t at = text.find(address);
  const std::size_t scheme = fetch.address.find("://");
  if (at == std::string::npos || scheme == std::string::npos) return sentence(text);
  const std::size_t begin = scheme + 3;
  const std::string host = fetch.address.substr(begin, fetch.address.find_first_of("/?", begin) - begin);
  const bool isServer = text.substr(0, at).ends_with(": ");
  text.replace(at, address.size(), join(isServer ? "" : "the draws at ", host));
  return sentence(text);
}

}  // namespace tallywick
