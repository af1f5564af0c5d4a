// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/merge.h"

#include "core/draws.h"
#include "core/text.h"
#include "core/winnings.h"
#include "exports/record_list.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <stdexcept>
#include <utility>

namespace tallywick::exports {

namespace {

/// The fewest that the last draw, the displays and the charts need.
constexpr std::size_t fewestDraws = 101;

using DrawsByDay = std::map<Day, const DrawEntry*, std::greater<>>;

void put(const Balls& balls, std::vector<std::string>& fields, std::size_t at) {
  for (int white : balls.white) fields[at++] = twoDigits(white);
  fields[at] = twoDigits(balls.extra);
}

void updateDraw(FileRecord& record, const DrawEntry& draw) {
  record = recordFor(draw.day, {record.fields.begin() + mainBalls, record.fields.end()});
  put(draw.balls, record.fields, mainBalls);
}

void updateMain(FileRecord& record, const DrawEntry& draw) {
  updateDraw(record, draw);
  record.fields[multiplierField] = draw.multiplier;
}

void updateDoublePlay(FileRecord& record, const DrawEntry& draw) {
  updateDraw(record, draw);
  if (draw.doublePlay) put(*draw.doublePlay, record.fields, doublePlayBalls);
}

FileRecord newMain(const DrawEntry& draw) {
  FileRecord record = recordFor(draw.day, std::vector<std::string>(drawFields - mainBalls));
  updateMain(record, draw);
  return record;
}

/// Updates the records whose days have draws, each once, and returns these days.
template <typename Update>
std::set<Day> updateRecords(RecordList& list, const DrawsByDay& draws, Update update) {
  std::set<Day> updated;
  std::erase_if(list.records, [&](FileRecord& record) {
    const auto draw = record.day ? draws.find(*record.day) : draws.end();
    if (draw == draws.end()) return false;
    if (!updated.insert(draw->first).second) return true;
    update(record, *draw->second);
    return false;
  });
  return updated;
}

void mergeHistory(RecordList& list, const DrawsByDay& draws) {
  const std::set<Day> updated = updateRecords(list, draws, updateMain);
  for (const auto& [day, draw] : draws) {
    if (!updated.contains(day)) list.records.push_back(newMain(*draw));
  }
  list.sort();
}

FileRecord newDoublePlay(const FileRecord& main) {
  FileRecord record = main;
  record.fields.resize(doublePlayFields);
  record.fields[10] = "DP";
  record.fields[17] = "1";
  return record;
}

std::optional<Day> newestDay(const RecordList& list) {
  std::optional<Day> newest;
  for (const FileRecord& record : list.records) newest = std::max(newest, record.day);
  return newest;
}

/// Adds the draws with Double Play numbers, all others that are newer than what was there, so that no older
/// draw passes for the newest, and as many older ones as the displays need.
void mergeDoublePlay(RecordList& list, const DrawsByDay& draws, const RecordList& main) {
  std::optional<Day> newest = newestDay(list);
  std::set<Day> present = updateRecords(list, draws, updateDoublePlay);
  for (const auto& [day, draw] : draws) {
    if (!draw->doublePlay || present.contains(day)) continue;
    list.records.push_back(newDoublePlay(newMain(*draw)));
    updateDoublePlay(list.records.back(), *draw);
  }
  for (const FileRecord& record : list.records) {
    if (record.day) present.insert(*record.day);
  }
  if (!newest) newest = newestDay(list);
  for (const FileRecord& record : main.records) {
    const bool isNewer = newest && record.day > newest;
    if (!isNewer && list.records.size() >= chartedDraws) continue;
    if (!record.day || !present.insert(*record.day).second) continue;
    list.records.push_back(newDoublePlay(record));
  }
  list.sort();
}

FileRecord recordOf(const AmountEntry& entry) {
  return recordFor(entry.day, {entry.amount, std::to_string(entry.marks)});
}

/// Puts the amount in the place of all records of its day; whether that changes anything.
bool replaceAmount(std::vector<FileRecord>& records, const AmountEntry& entry) {
  FileRecord wanted = recordOf(entry);
  const auto isOfDay = [&](const FileRecord& record) { return record.day == entry.day; };
  const auto first = std::ranges::find_if(records, isOfDay);
  const bool isKnown = first != records.end() && first->fields == wanted.fields;
  if (std::erase_if(records, isOfDay) == 1 && isKnown) {
    records.push_back(std::move(wanted));
    return false;
  }
  records.push_back(std::move(wanted));
  return true;
}

std::vector<std::string> dateFields(const FileRecord& record) {
  return {record.fields.begin(), record.fields.begin() + mainBalls};
}

/// Writes the amounts' dates as the draws have them: amounts are found by the text of the date.
void alignDates(std::vector<FileRecord>& amounts, const RecordList& main) {
  std::map<Day, const FileRecord*> draws;
  for (const FileRecord& record : main.records) {
    if (record.day) draws.emplace(*record.day, &record);
  }
  for (FileRecord& record : amounts) {
    const auto draw = record.day ? draws.find(*record.day) : draws.end();
    if (draw != draws.end()) std::ranges::copy(dateFields(*draw->second), record.fields.begin());
  }
}

/// The amounts file; returns how many amounts are new in it.
std::size_t mergeAmounts(RecordList& list, const std::vector<AmountEntry>& amounts, const RecordList& main) {
  std::vector<FileRecord>& records = list.records;
  while (records.size() > 1 && records.back().fields == records[records.size() - 2].fields)
    records.pop_back();
  std::size_t changed = 0;
  for (const AmountEntry& entry : amounts) {
    if (replaceAmount(records, entry)) ++changed;
  }
  alignDates(records, main);
  std::set<std::vector<std::string>> known;
  for (const FileRecord& record : records) known.insert(dateFields(record));
  for (std::size_t i = 0; i < std::min(shownDraws, main.records.size()); ++i) {
    std::vector<std::string> fields = dateFields(main.records[i]);
    if (!known.insert(fields).second) continue;
    fields.insert(fields.end(), {"", "0"});
    records.push_back({std::move(fields), main.records[i].day});
  }
  list.sort();
  if (!records.empty()) records.push_back(records.back());
  return changed;
}

/// Compares the main history with what it was.
void reportDraws(MergeReport& report, Game game, const DrawsByDay& draws, const RecordList& before,
                 const RecordList& now) {
  std::map<Day, const FileRecord*> old;
  for (const FileRecord& record : before.records) {
    if (record.day) old.emplace(*record.day, &record);
  }
  std::vector<DrawEntry> all;
  for (const FileRecord& record : now.records) {
    if (!record.day) continue;
    all.push_back({*record.day, {}});
    const auto found = old.find(*record.day);
    if (found == old.end()) {
      ++report.newDraws;
    } else if (found->second->fields != record.fields && draws.contains(*record.day)) {
      report.changedDraws.push_back(*record.day);
    }
  }
  report.missing = missingDraws(game, all);
}

std::size_t countDays(const RecordList& list) {
  std::set<Day> days;
  for (const FileRecord& record : list.records) {
    if (record.day) days.insert(*record.day);
  }
  return days.size();
}

}  // namespace

Merge mergeInto(Game game, const std::vector<DrawEntry>& draws, const std::vector<AmountEntry>& amounts,
                const GameFiles& files, DrawOrigin origin) {
  const GameFiles base = origin == DrawOrigin::real ? files : GameFiles{};
  DrawsByDay byDay;
  for (const DrawEntry& draw : draws) byDay.emplace(draw.day, &draw);
  Merge merge;
  merge.report.draws = draws.size();

  RecordList main(base.draws, drawFields);
  RecordList search(base.searchDraws, drawFields);
  // A copy that is missing begins as the other one.
  if (main.records.empty()) main.records = search.records;
  if (search.records.empty()) search.records = main.records;
  const RecordList before = main;
  mergeHistory(main, byDay);
  mergeHistory(search, byDay);
  GameFiles now{main.text(), search.text(), {}, {}, {}, files.exportNote};
  if (game == Game::powerBall) {
    RecordList doublePlay(base.doublePlay, doublePlayFields);
    mergeDoublePlay(doublePlay, byDay, main);
    now.doublePlay = doublePlay.text();
  }
  RecordList amountsList(base.amounts, winningsFields);
  merge.report.newAmounts = mergeAmounts(amountsList, amounts, main);
  now.amounts = amountsList.text();
  RecordList typed(base.typed, drawFields);
  std::erase_if(typed.records,
                [&](const FileRecord& record) { return !record.day || byDay.contains(*record.day); });
  now.typed = typed.text();

  reportDraws(merge.report, game, byDay, before, main);
  merge.files = changedFiles(infoOf(game), files, std::move(now));
  return merge;
}

Merge mergeExport(Game game, const ExportedDraws& draws, const ExportedAmounts& amounts,
                  const GameFiles& files, DrawOrigin origin) {
  const std::string count = std::to_string(draws.draws.size());
  if (draws.draws.empty()) throw std::runtime_error("there is no draw in it");
  if (draws.draws.size() < fewestDraws) {
    throw std::runtime_error(
        join("it has ", count, " draws; at least ", std::to_string(fewestDraws), " are needed"));
  }
  Day newest = draws.draws.front().day;
  if (origin == DrawOrigin::real) {
    const RecordList main(files.draws, drawFields);
    const std::size_t present = countDays(main);
    if (draws.draws.size() * 2 < present) {
      throw std::runtime_error(join("it has ", count, " draws, fewer than half of the ",
                                    std::to_string(present), " that are known already"));
    }
    for (const FileRecord& record : main.records) newest = std::max(newest, record.day.value_or(newest));
  }
  if (draws.refused.newestDay && *draws.refused.newestDay > newest) {
    const RefusedRow& row = draws.refused.newest;
    throw std::runtime_error(
        join("the newest draw, in line ", std::to_string(row.line), ", cannot be used: ", row.reason));
  }
  Merge merge = mergeInto(game, draws.draws, amounts.amounts, files, origin);
  merge.report.refused = draws.refused;
  merge.report.refusedAmounts = amounts.refused;
  merge.report.notices = draws.notices;
  return merge;
}

}  // namespace tallywick::exports
