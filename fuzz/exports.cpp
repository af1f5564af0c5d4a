// SPDX-License-Identifier: GPL-3.0-or-later
// Public exports of draws and amounts, for both games.
#include "core/text.h"
#include "exports/csv_reader.h"
#include "exports/export_rows.h"
#include "fuzz/property.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <string>

namespace tallywick::fuzz {

namespace {

using namespace exports;

constexpr Day today = dayOf(2026, 11, 21);

/// None where the export cannot be used at all.
template <typename Answer>
std::optional<Answer> read(Answer (*reader)(Game, CsvReader&, Day), Game game, CsvReader::Source source) {
  try {
    CsvReader rows(std::move(source));
    return reader(game, rows, today);
  } catch (const std::runtime_error&) {
    return std::nullopt;
  }
}

/// Gives `text` in pieces of at most `most` characters.
CsvReader::Source inPieces(std::string_view text, std::size_t most) {
  return [text, most](char* to, std::size_t size) mutable {
    const std::size_t count = text.copy(to, std::min(size, most));
    text.remove_prefix(count);
    return count;
  };
}

std::string numbers(const Balls& balls, char beforeExtra) {
  std::string text;
  for (int white : balls.white) text += join(std::to_string(white), " ");
  text.back() = beforeExtra;
  return join(text, std::to_string(balls.extra));
}

std::string csvOf(Game game, const ExportedDraws& exported) {
  const bool isPowerBall = game == Game::powerBall;
  std::string csv = isPowerBall ? "Draw Date,Winning Numbers,Multiplier,Double Play Winning Numbers\n"
                                : "Draw Date,Winning Numbers,Mega Ball,Multiplier\n";
  for (const DrawEntry& draw : exported.draws) {
    csv +=
        join(displayDate(draw.day), ",", numbers(draw.balls, isPowerBall ? ' ' : ','), ",", draw.multiplier);
    if (draw.doublePlay) csv += join(",", numbers(*draw.doublePlay, ' '));
    csv += '\n';
  }
  return csv;
}

std::string csvOf(Game, const ExportedAmounts& exported) {
  std::string csv = "Draw Date,Amount,Mark Count\n";
  for (const AmountEntry& entry : exported.amounts) {
    csv += join(displayDate(entry.day), ",\"", entry.amount, "\",", std::to_string(entry.marks), "\n");
  }
  return csv;
}

std::string textOf(const RefusedRows& refused) {
  std::string text = std::to_string(refused.count);
  for (const RefusedRow& row : refused.first) text += join("\n", std::to_string(row.line), " ", row.reason);
  return text;
}

const std::vector<DrawEntry>& entriesOf(const ExportedDraws& exported) {
  return exported.draws;
}
const std::vector<AmountEntry>& entriesOf(const ExportedAmounts& exported) {
  return exported.amounts;
}

void checkRefused(const RefusedRows& refused) {
  require(refused.first.size() == std::min(refused.count, RefusedRows::mostKept),
          "the first refusals are kept");
  for (const RefusedRow& row : refused.first) {
    require(row.reason.size() <= 80, "a reason has at most 80 characters");
    const auto isVisible = [](char letter) { return letter >= ' ' && letter <= '~'; };
    require(std::ranges::all_of(row.reason, isVisible), "a reason is visible");
  }
  require(std::ranges::is_sorted(refused.first, {}, &RefusedRow::line), "refusals are in the file's order");
}

template <typename Answer>
void check(Answer (*reader)(Game, CsvReader&, Day), Game game, std::string_view text) {
  const std::optional<Answer> whole = read(reader, game, inPieces(text, text.size()));
  const std::optional<Answer> pieces = read(reader, game, inPieces(text, 3));
  require(whole.has_value() == pieces.has_value(), "an export in pieces is the same export");
  if (!whole) return;
  const std::string csv = csvOf(game, *whole);
  require(csvOf(game, *pieces) == csv && textOf(pieces->refused) == textOf(whole->refused),
          "an export in pieces has the same rows");
  checkRefused(whole->refused);
  const auto& entries = entriesOf(*whole);
  const auto isOutOfOrder = [](const auto& one, const auto& next) { return one.day <= next.day; };
  require(std::ranges::adjacent_find(entries, isOutOfOrder) == entries.end(), "newest first, each day once");
  require(entries.empty() || entries.front().day <= today, "no day is later than today");

  const std::optional<Answer> again = read(reader, game, inPieces(csv, csv.size()));
  require(again && again->refused.count == 0, "what was taken over is an export without refused rows");
  require(csvOf(game, *again) == csv, "what was taken over survives being written and read again");
}

}  // namespace

}  // namespace tallywick::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tallywick;
  const std::string_view text = fuzz::textOf(data, size);
  // Rows near the limit of length may exceed it with the quotes that are written.
  if (size > exports::CsvReader::longestRow / 2) return 0;
  for (const GameInfo* game : allGames) {
    fuzz::check(exports::readDraws, game->game, text);
    fuzz::check(exports::readAmounts, game->game, text);
  }
  return 0;
}
