// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/import_report.h"

#include "core/os.h"
#include "core/text.h"
#include "exports/csv_table.h"
#include "exports/export_rows.h"

#include <ostream>
#include <stdexcept>

namespace tallywick::exports {

namespace {

/// Runs `read` on the table of `file`; whatever is wrong is told with the file's name.
template <typename Read>
auto readTable(const std::filesystem::path& file, Read read) {
  try {
    const os::FileBytes bytes = os::readFile(file);
    return read(CsvTable(bytes.view()));
  } catch (const std::exception& error) {
    throw std::runtime_error(join(file.string(), ": ", error.what()));
  }
}

void tellRefused(const std::vector<RefusedRow>& refused, std::ostream& out) {
  for (const RefusedRow& row : refused) out << "  refused line " << row.line << ": " << row.reason << "\n";
}

void tellMissing(const std::vector<Day>& missing, std::ostream& out) {
  if (missing.empty()) return;
  out << "  scheduled draws that are missing:";
  for (Day day : missing) out << ' ' << displayDate(day);
  out << "\n";
}

}  // namespace

ExportedGame readExports(Game game, const std::filesystem::path& draws, const std::filesystem::path& amounts,
                         std::ostream& out) {
  ImportedDraws imported = readTable(draws, [&](const CsvTable& table) { return importDraws(game, table); });
  out << infoOf(game).name << ": " << imported.draws.size() << " draws taken from " << draws.string() << "\n";
  tellRefused(imported.refused, out);
  if (imported.draws.empty()) throw std::runtime_error(join(draws.string(), ": it holds no draw"));
  tellMissing(missingDraws(game, imported.draws), out);
  ExportedGame exported{std::move(imported.draws), {}};
  if (amounts.empty()) return exported;

  ImportedAmounts won = readTable(amounts, [](const CsvTable& table) { return importAmounts(table); });
  out << infoOf(game).name << ": " << won.amounts.size() << " amounts taken from " << amounts.string()
      << "\n";
  tellRefused(won.refused, out);
  exported.amounts = std::move(won.amounts);
  return exported;
}

}  // namespace tallywick::exports
