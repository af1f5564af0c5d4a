// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/import_report.h"

#include "core/eras.h"
#include "core/file_names.h"
#include "core/os.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "exports/csv_reader.h"

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tallywick::exports {

namespace {

constexpr std::size_t mostPrinted = 20;

/// Runs `read` on the rows of `file`; whatever is wrong is reported with the file's name.
template <typename Read>
auto readFrom(const std::filesystem::path& file, Read read) {
  try {
    os::InputFile input(file);
    CsvReader rows([&input](char* to, std::size_t size) { return input.read(to, size); });
    return read(rows);
  } catch (const std::exception& error) {
    throw std::runtime_error(join(textOf(file), ": ", error.what()));
  }
}

/// The texts, at most twenty of them, each behind `before`.
void printSome(const std::vector<std::string>& texts, std::string_view before, std::ostream& out) {
  for (std::size_t i = 0; i < std::min(texts.size(), mostPrinted); ++i) out << before << texts[i];
  if (texts.size() > mostPrinted) out << before << "and " << texts.size() - mostPrinted << " more";
}

void printRefused(const RefusedRows& refused, std::ostream& out) {
  for (const RefusedRow& row : refused.first) {
    out << "  refused line " << row.line << ": " << row.reason << "\n";
  }
  if (refused.count > refused.first.size()) {
    out << "  and " << refused.count - refused.first.size() << " more\n";
  }
}

std::vector<std::string> datesOf(const std::vector<Day>& days) {
  std::vector<std::string> dates;
  for (Day day : days) dates.push_back(displayDate(day));
  return dates;
}

/// Draws that follow each other in the schedule, as the first and the last of them.
std::vector<std::string> rangesOf(Game game, const std::vector<Day>& days) {
  std::vector<std::string> ranges;
  for (std::size_t begin = 0; begin < days.size();) {
    std::size_t end = begin + 1;
    while (end < days.size() && drawDayAfter(game, days[end - 1]) == days[end]) ++end;
    std::string range = displayDate(days[begin]);
    if (end - begin > 1) {
      range += join(" to ", displayDate(days[end - 1]), " (", std::to_string(end - begin), ")");
    }
    ranges.push_back(std::move(range));
    begin = end;
  }
  return ranges;
}

void printMissing(Game game, const std::vector<Day>& missing, std::ostream& out) {
  if (missing.empty()) return;
  out << "  scheduled draws that are missing:";
  if (missing.size() <= mostPrinted) {
    printSome(datesOf(missing), " ", out);
  } else {
    out << " " << missing.size();
    printSome(rangesOf(game, missing), "\n    ", out);
  }
  out << "\n";
}

}  // namespace

ExportedDraws readDrawsFile(Game game, const std::filesystem::path& file, Day today) {
  return readFrom(file, [&](CsvReader& rows) { return readDraws(game, rows, today); });
}

ExportedAmounts readAmountsFile(Game game, const std::filesystem::path& file, Day today) {
  return readFrom(file, [&](CsvReader& rows) { return readAmounts(game, rows, today); });
}

void print(const MergeReport& report, Game game, std::ostream& out) {
  out << "  " << report.newDraws << " new draws, " << report.changedDraws.size() << " changed, "
      << report.newAmounts << " new amounts\n";
  if (!report.changedDraws.empty() && report.changedDraws.size() < report.draws) {
    out << "  changed:";
    printSome(datesOf(report.changedDraws), " ", out);
    out << "\n";
  }
  printRefused(report.refused, out);
  if (report.refusedAmounts.count > 0) out << "  of the amounts:\n";
  printRefused(report.refusedAmounts, out);
  for (const std::string& notice : report.notices) out << "  " << notice << "\n";
  printMissing(game, report.missing, out);
}

}  // namespace tallywick::exports
