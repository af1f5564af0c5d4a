// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/record_texts.h"

#include "exports/quoted_record.h"

#include <algorithm>
#include <set>

namespace tallywick::exports {

namespace {

void appendDoublePlay(std::string& text, const DrawEntry& draw) {
  QuotedRecord record(text);
  record.day(draw.day).balls(draw.balls).field(draw.multiplier).field("DP");
  if (draw.doublePlay) {
    record.balls(*draw.doublePlay);
  } else {
    for (int i = 0; i < 6; ++i) record.field("");
  }
  record.field("1");
}

void appendAmount(std::string& text, const AmountEntry& entry) {
  QuotedRecord(text).day(entry.day).field(entry.amount).field(std::to_string(entry.marks));
}

}  // namespace

std::string drawsText(const std::vector<DrawEntry>& draws) {
  std::string text;
  for (const DrawEntry& draw : draws)
    QuotedRecord(text).day(draw.day).balls(draw.balls).field(draw.multiplier);
  return text;
}

std::string doublePlayText(const std::vector<DrawEntry>& draws) {
  std::string text;
  const auto isKnown = [](const DrawEntry& draw) { return draw.doublePlay.has_value(); };
  auto missing = static_cast<std::ptrdiff_t>(chartedDraws) - std::ranges::count_if(draws, isKnown);
  for (const DrawEntry& draw : draws) {
    if (isKnown(draw)) appendDoublePlay(text, draw);
  }
  for (const DrawEntry& draw : draws) {
    if (!isKnown(draw) && missing-- > 0) appendDoublePlay(text, draw);
  }
  return text;
}

std::string winningsText(std::vector<AmountEntry> amounts, const std::vector<DrawEntry>& draws) {
  std::set<Day> known;
  for (const AmountEntry& entry : amounts) known.insert(entry.day);
  for (std::size_t i = 0; i < std::min(shownDraws, draws.size()); ++i) {
    if (!known.contains(draws[i].day)) amounts.push_back({draws[i].day, "", 0});
  }
  std::ranges::stable_sort(amounts, std::greater(), &AmountEntry::day);
  std::string text;
  for (const AmountEntry& entry : amounts) appendAmount(text, entry);
  if (!amounts.empty()) appendAmount(text, amounts.back());
  return text;
}

}  // namespace tallywick::exports
