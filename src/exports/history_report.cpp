// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/history_report.h"

#include "core/data_folder.h"
#include "core/draws.h"
#include "core/text.h"
#include "core/winnings.h"
#include "exports/export_rows.h"
#include "exports/merge.h"
#include "exports/record_list.h"
#include "exports/typed_draws.h"

#include <algorithm>
#include <functional>

namespace tallywick::exports {

/// Of several amounts of a day the last one is shown. The file's last record is not looked at.
std::map<Day, AmountEntry> shownAmounts(const std::string& text) {
  RecordList list(text, winningsFields);
  if (!list.records.empty()) list.records.pop_back();
  std::map<Day, AmountEntry> amounts;
  for (const FileRecord& record : list.records) {
    if (!record.day) continue;
    const int marks = wholeNumber<int>(trimmed(record.fields[4])).value_or(0);
    amounts.insert_or_assign(*record.day,
                             AmountEntry{*record.day, std::string(trimmed(record.fields[3])), marks});
  }
  return amounts;
}

HistoryReport reportOf(const GameInfo& game, const GameFiles& files) {
  std::map<Day, DrawEntry, std::greater<>> days;
  for (const FileRecord& record : RecordList(files.draws, drawFields).records) {
    if (record.day) days.emplace(*record.day, DrawEntry{*record.day, {}});
  }
  std::vector<DrawEntry> draws;
  draws.reserve(days.size());
  for (const auto& [day, draw] : days) draws.push_back(draw);

  HistoryReport report;
  report.draws = draws.size();
  if (draws.empty()) return report;
  report.first = draws.back().day;
  report.newest = draws.front().day;
  report.missing = missingDraws(game.game, draws);
  report.typed = typedDraws(files);
  const std::map<Day, AmountEntry> amounts = shownAmounts(files.amounts);
  for (std::size_t i = 0; i < std::min(shownDraws, draws.size()); ++i) {
    const auto known = amounts.find(draws[i].day);
    report.newestAmounts.push_back(known != amounts.end() ? known->second : AmountEntry{draws[i].day, ""});
  }
  return report;
}

HistoryReport reportOf(const DataFolder& folder, Game game) {
  const GameInfo& info = infoOf(game);
  return reportOf(info, readGameFiles(info, folder.resolve(info.folder)));
}

}  // namespace tallywick::exports
